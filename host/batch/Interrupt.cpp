#include "batch/Interrupt.h"

#include <array>

namespace host {
namespace {

constexpr std::array SIGNALS = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t g_nCount = 0;

void Note(int /*nSignal*/)
{
    g_nCount = g_nCount + 1;
}

sigset_t AllSignals()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int nSignal : SIGNALS)
        sigaddset(&set, nSignal);
    return set;
}

void Handle(int nSignal, void (*pHandler)(int))
{
    struct sigaction action = {};
    sigaction(nSignal, nullptr, &action);
    if (action.sa_handler == SIG_IGN)
        return;
    action = {};
    action.sa_handler = pHandler;
    sigemptyset(&action.sa_mask);
    sigaction(nSignal, &action, nullptr);
}

}  // namespace

Interrupt::Interrupt()
{
    g_nCount = 0;
    const sigset_t set = AllSignals();
    sigprocmask(SIG_BLOCK, &set, &m_before);
    for (const int nSignal : SIGNALS)
        Handle(nSignal, Note);
}

Interrupt::~Interrupt()
{
    for (const int nSignal : SIGNALS)
        Handle(nSignal, SIG_DFL);
    sigprocmask(SIG_SETMASK, &m_before, nullptr);
}

int Interrupt::Count() const
{
    sigset_t held;
    sigprocmask(SIG_SETMASK, &m_before, &held);  // those that wait are handled here
    sigprocmask(SIG_SETMASK, &held, nullptr);
    return g_nCount;
}

void Interrupt::IgnoreInChild()
{
    for (const int nSignal : SIGNALS)
        std::signal(nSignal, SIG_IGN);
    const sigset_t set = AllSignals();
    sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

}  // namespace host
