// The base of every test fixture that touches what lives as long as the process.
#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "KZCConvertInfo.h"
#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaTaxOffices.h"
#include "KZCValidResult.h"
#include "calendar/Clock.h"
#include "definition/KZCEkaMOKDefReportFinance.h"
#include "xml/XercesGuards.h"

/// Starts each test with the state of a process that has just loaded the library, leaves it so, and
/// keeps the XML library running meanwhile. Works in constructor and destructor, so that a fixture
/// may have a SetUp of its own.
class ResetState : public testing::Test
{
protected:
    ResetState() { Reset(); }
    ~ResetState() override { Reset(); }

private:
    static void Reset()
    {
        KZCConvertInfo::destroy();
        KZCValidResult::destroy();
        KZCEkaTaxOffices::destroy();
        KZCEkaMOKDefineNode::clearCloseTags();
        KZCEkaMOKDefReportFinance::clearReportIDList();
        KZCEkaCommon::setExecMode(KZCEkaCommon::EXEC_MODE_ZEKA);
        KZCEkaCommon::SetCsvCheckFlag(false);
        KZCDebugDump::Reset();
        Clock::Set(std::nullopt);
    }

    XercesSession m_session;
};
