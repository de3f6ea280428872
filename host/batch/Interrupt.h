// The signals by which a user or the system asks the program to end.
#pragma once

#include <csignal>

namespace host {

/// Catches SIGINT, SIGTERM and SIGHUP for as long as it lives, but for those that the program was
/// started to ignore. They are held back but in waits that are given WaitMask, so that none is
/// missed between a look and a wait.
class Interrupt
{
public:
    Interrupt();
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

    /// How many came, up to now.
    int Count() const;
    const sigset_t* WaitMask() const { return &m_before; }
    /// For a child: it ignores them, as its parent decides.
    static void IgnoreInChild();

private:
    sigset_t m_before{};
};

}  // namespace host
