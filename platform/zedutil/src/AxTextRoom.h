#pragma once

#include <cstddef>
#include <string>

/// Room at the end of a text that is written: many lines are put there without a call for each piece of them.
class AxTextRoom
{
public:
    explicit AxTextRoom(std::string& out) : myOut(out), myUsed(out.size()) {}
    AxTextRoom(AxTextRoom const&) = delete;
    AxTextRoom& operator=(AxTextRoom const&) = delete;
    ~AxTextRoom() { myOut.resize(myUsed); }

    /// The end of the text, where `size` characters may be written.
    char* take(std::size_t size)
    {
        if (myOut.size() - myUsed < size)
        {
            constexpr std::size_t atOnce = 1024;
            myOut.resize(myUsed + size + atOnce);
        }
        return myOut.data() + myUsed;
    }
    /// What was taken is written up to here.
    void put(char const* end) { myUsed = static_cast<std::size_t>(end - myOut.data()); }

    /// Lets another append to the text itself.
    template <class Append>
    void append(Append&& appendTo)
    {
        myOut.resize(myUsed);
        appendTo(myOut);
        myUsed = myOut.size();
    }

private:
    std::string& myOut;
    std::size_t myUsed;
};
