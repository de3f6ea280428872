// Collects what the rules of lint find.
#pragma once

#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/Language.h"
#include "lint/LintFinding.h"
#include "lint/LintRules.h"

namespace host {

/// A place in a file of the resource folder.
struct LintPlace
{
    std::string strFile;
    long lLine = 0;
};

/// What is wrong and what to do. {1} and so on mean the same in both.
struct LintTexts
{
    Text message;
    Text advice;
};

class LintReport
{
public:
    void Add(LintRule eRule,
             const LintPlace& place,
             const LintTexts& texts,
             std::initializer_list<std::string_view> listArgument = {});
    void Add(LintRule eRule, const LintPlace& place, std::string strMessage, std::string strAdvice);

    /// An error in the lines of a file (both included), or for the file as a whole.
    bool HasError(const std::string& strFile, long lFirstLine, long lLastLine) const;

    /// By file and line, otherwise in the order of finding. Leaves nothing here.
    std::vector<LintFinding> Take();

private:
    std::vector<LintFinding> m_vecFinding;
    /// Lines with an error by file; 0 stands for the file as a whole.
    std::map<std::string, std::set<long>> m_mapErrorLine;
};

}  // namespace host
