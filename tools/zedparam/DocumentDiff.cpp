#include "DocumentDiff.h"

#include <algorithm>

#include "RecordText.h"

namespace
{
/// What a record or a text of no known kind is called; the head of other files is free.
void addName(Item const& a, Item const& b, Document const& documentA, Document const& documentB,
             std::vector<Difference>& differences)
{
    bool const isFree = documentA.kind == Document::Kind::Content || documentB.kind == Document::Kind::Content;
    if (a.text != b.text && !isFree)
    {
        Difference difference;
        difference.path = {{.head = {}, .label = "(name)"}};
        difference.item[0] = difference.parent[0] = &a;
        difference.item[1] = difference.parent[1] = &b;
        difference.text[0] = a.text;
        difference.text[1] = b.text;
        differences.insert(differences.begin(), std::move(difference));
    }
}
} // namespace

void compareDocuments(std::string const& subject, Document const& a, Document const& b, DiffOptions const& options,
                      DiffReport& report)
{
    if ((a.kind == Document::Kind::Tree) != (b.kind == Document::Kind::Tree) && !a.element && !b.element)
    {
        compareDocuments(subject, {.file = a.file}, {.file = b.file}, options, report);
        return;
    }
    bool const areEntities = a.hasParts && b.hasParts;
    if (!areEntities && a.object != nullptr && b.object != nullptr && recordText(*a.object) == recordText(*b.object))
    {
        return;
    }
    DocumentTree trees[2] = {DocumentTree(a, options.defaults), DocumentTree(b, options.defaults)};
    if (areEntities)
    {
        trees[0].addEntityParts(a);
        trees[1].addEntityParts(b);
    }
    std::vector<Difference> differences = differencesOf(trees[0].root(), trees[1].root(), options.tolerance);
    addName(trees[0].root(), trees[1].root(), a, b, differences);
    report.add(subject, a, b, differences);
}

bool compareFiles(std::string const& subject, std::string const& a, std::string const& b, std::string const& database,
                  DiffOptions const& options, DiffReport& report)
{
    std::vector<Document> const of[2] = {readDocuments(a, database), readDocuments(b, database)};
    if (of[0].empty() || of[1].empty())
    {
        return false;
    }
    if (of[0].size() == 1 && of[1].size() == 1)
    {
        compareDocuments(subject, of[0].front(), of[1].front(), options, report);
        return true;
    }
    for (int side = 0; side < 2; ++side)
    {
        for (Document const& document : of[side])
        {
            std::vector<Document> const& others = of[1 - side];
            std::string const label = subject + (subject.empty() ? "" : " ") + document.name;
            auto const partner = std::ranges::find(others, document.name, &Document::name);
            if (partner == others.end())
            {
                report.addOnly(label, side, document.file);
            }
            else if (side == 0)
            {
                compareDocuments(label, document, *partner, options, report);
            }
        }
    }
    return true;
}
