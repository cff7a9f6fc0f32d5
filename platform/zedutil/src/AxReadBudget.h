#pragma once

/// How often names may lead to further names within one outermost source. What a text names itself is as long as the
/// text and always granted; what those names lead to can double with each of them, so it has a bound, which grows with
/// the text.
class AxReadBudget
{
public:
    explicit AxReadBudget(unsigned most) : myMost(most) {}

    /// One more use, `direct` when the text itself asks for it.
    bool grants(bool direct);
    /// Whether a refusal is the first within its source, and so worth a line.
    bool isFirstRefusal();

private:
    static constexpr unsigned long perDirectUse = 100;

    unsigned long myMost;
    unsigned long mySource = 0;
    unsigned long myDirectUses = 0;
    unsigned long myUses = 0;
    bool myIsTold = false;
};
