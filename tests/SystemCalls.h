#pragma once

/// What happens to the system calls that the library makes on files; each is counted.
struct SystemFault
{
    enum class Kind
    {
        None,        ///< they are only counted
        Fail,        ///< the n-th fails with `error`
        FailOnwards, ///< so do all after it
        ShortWrite,  ///< the n-th, if it is a write, takes half of its bytes
        Kill,        ///< the process ends in place of the n-th
        KillInWrite  ///< the process ends in the n-th, if that is a write, after half of its bytes
    };
    Kind kind = Kind::None;
    int n = 0;
    int error = 0;

    static constexpr int killed = 77;
};

/// As long as one lives, `fault` holds, and nothing waits for the disk.
class SystemFaultScope
{
public:
    explicit SystemFaultScope(SystemFault const& fault);
    SystemFaultScope(SystemFaultScope const&) = delete;
    SystemFaultScope& operator=(SystemFaultScope const&) = delete;
    ~SystemFaultScope();

    /// Calls since the last scope began.
    static int calls();
};
