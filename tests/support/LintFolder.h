// A resource folder without a mistake, and edits that bring one in.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "TempFolder.h"
#include "lint/Lint.h"

inline constexpr const char* LINT_BASE = "KZEkaDefine.xml";
inline constexpr const char* LINT_OFFICES = "TaxOffices.xml";
inline constexpr const char* LINT_VLD = "Finance/PGE2015_vld.xml";
inline constexpr const char* LINT_TPL = "Finance/PGE2015_tpl.xml";
inline constexpr const char* LINT_TWO_VLD = "Finance/PGE2030_vld.xml";
inline constexpr const char* LINT_TWO_TPL = "Finance/PGE2030_tpl.xml";
inline constexpr const char* LINT_MULTI_VLD = "Finance/PGE1640_vld.xml";
inline constexpr const char* LINT_MULTI_TPL = "Finance/PGE1640_tpl.xml";

/// A part of a file in place of another that stands there once.
struct LintEdit
{
    std::string strFile;
    std::string strFind;
    std::string strReplace;
};

/// What is expected of a finding. The line is that of a text which stands in the file once.
struct LintExpected
{
    std::string strRule;
    std::string strFile;
    std::string strAt;  ///< empty for the file as a whole
};

/// Type ids "002" (one form), "101" (one form), "103" (two forms) and "202" (pages with a head and
/// a trailer).
class LintFolderText
{
public:
    LintFolderText()
    {
        m_mapFile[LINT_BASE] = R"(<?xml version="1.0" encoding="UTF-8"?>
<define>
  <report id="002" columnNum="10" procId="PGE5020" procVR="1.0" reportId="GEZ520" reportVR="1.0" label="様式">
    <item type="TAG" id="GEZ52000" parent="GEZ520"/>
    <item type="Normal" id="GEZ52010" parent="GEZ52000" column="2" label="番号">
      <valid id="exist"/>
      <valid id="length" max="5"/>
    </item>
    <item type="Date" id="GEZ52020" parent="GEZ52000" label="期日">
      <valid id="existdate"/>
    </item>
    <item type="Kubun" id="gen:era" parent="GEZ52020" column="3" label="元号"/>
    <item type="Normal" id="gen:yy" parent="GEZ52020" column="4" label="年"/>
    <item type="Normal" id="gen:mm" parent="GEZ52020" column="5" label="月"/>
    <item type="Normal" id="gen:dd" parent="GEZ52020" column="6" label="日"/>
    <item type="Normal" id="GEZ52030" parent="GEZ52000"/>
    <item type="Normal" id="GEZ52040" parent="GEZ52030" column="7" label="額">
      <valid id="number"/>
    </item>
    <item type="Normal" id="GEZ52050" parent="GEZ52030" column="8" label="郵便番号"/>
    <item type="Normal" id="GEZ52060" parent="GEZ52000" column="9" label="局署名称"/>
    <item type="Normal" id="GEZ52070" parent="GEZ52000" column="10" label="局署番号"/>
    <item type="IdRef" id="GEZ52080" parent="GEZ52000" value="NOZEISHA_NM"/>
  </report>
</define>
)";
        m_mapFile[LINT_OFFICES] = R"(<?xml version="1.0" encoding="UTF-8"?>
<TaxOffices>
  <TaxOffice OfficeType="5" OfficeCode="00101" OfficeName="青葉"/>
  <TaxOffice OfficeType="1" OfficeCode="00102" OfficeName="白樺"/>
  <TaxOffice OfficeType="5" OfficeCode="00103" OfficeName="紅葉"/>
</TaxOffices>
)";
        m_mapFile[LINT_VLD] = R"(<?xml version="1.0" encoding="UTF-8"?>
<define>
  <report columnNum="3" procId="PGE2015" procVR="231.0" reportId="GEZ035" reportVR="1.0" label="様式">
    <item type="Normal" id="A" parent="" column="2" label="番号">
      <valid id="exist"/>
    </item>
    <item type="Normal" id="B" parent="GEZ035" column="3" label="名前">
      <valid id="istring"/>
    </item>
  </report>
</define>
)";
        m_mapFile[LINT_TPL] = R"(<?xml version="1.0" encoding="UTF-8"?>
<define>
  <report procId="PGE2015" procVR="231.0" reportId="GEZ035" reportVR="1.0" label="様式">
    <item type="TAG" id="GEZ03500" parent="GEZ035"/>
    <item type="Normal" id="GEZ03510" parent="GEZ03500" column="2" label="番号"/>
    <item type="Normal" id="GEZ03520" parent="GEZ03500" column="3" label="名前"/>
  </report>
</define>
)";
        m_mapFile[LINT_TWO_VLD] = R"(<?xml version="1.0" encoding="UTF-8"?>
<define>
  <report columnNum="2" procId="PGE2030" procVR="231.0" reportId="GEZ050" reportVR="5.0" startRow="1" endRow="2" label="合計表">
    <item type="Normal" id="A" parent="" column="2" label="件数">
      <valid id="number"/>
    </item>
  </report>
  <report columnNum="2" procId="PGE2030" procVR="231.0" reportId="GEZ051" reportVR="5.0" startRow="3" endRow="-1" label="明細書">
    <item type="Normal" id="B" parent="" column="2" label="番号">
      <valid id="number"/>
    </item>
  </report>
</define>
)";
        m_mapFile[LINT_TWO_TPL] = R"(<?xml version="1.0" encoding="UTF-8"?>
<define>
  <report procId="PGE2030" procVR="231.0" reportId="GEZ050" reportVR="5.0" startRow="1" endRow="2" stepRow="2" label="合計表">
    <item type="Normal" id="GEZ05010" parent="GEZ050" column="2" label="件数"/>
  </report>
  <report procId="PGE2030" procVR="231.0" reportId="GEZ051" reportVR="5.0" label="明細書">
    <item type="Normal" id="GEZ05110" parent="GEZ051" column="2" label="番号"/>
  </report>
</define>
)";
        m_mapFile[LINT_MULTI_VLD] = R"(<?xml version="1.0" encoding="UTF-8"?>
<define>
  <report columnNum="2" procId="PGE1640" procVR="231.0" reportId="GEZ750" reportVR="1.0" startRow="1" endRow="1" label="見出し">
    <item type="Normal" id="A" parent="" column="2" label="名前">
      <valid id="exist"/>
    </item>
  </report>
  <report columnNum="2" procId="PGE1640" procVR="231.0" reportId="GEZ750" reportVR="1.0" startRow="2" endRow="-1" label="明細">
    <item type="Normal" id="B" parent="" column="2" label="額">
      <valid id="number"/>
    </item>
  </report>
  <report columnNum="2" procId="PGE1640" procVR="231.0" reportId="GEZ750" reportVR="1.0" lastRecord="1" label="合計">
    <item type="Normal" id="C" parent="" column="2" label="合計額">
      <valid id="number"/>
    </item>
  </report>
</define>
)";
        m_mapFile[LINT_MULTI_TPL] = R"(<?xml version="1.0" encoding="UTF-8"?>
<define>
  <report procId="PGE1640" procVR="231.0" reportId="GEZ750" reportVR="1.0" startRow="2" endRow="-1" stepRow="3" label="連記表">
    <item type="TAG" id="HEAD" parent="GEZ750" startRow="1" endRow="1" repeatTopTag="1"/>
    <item type="Normal" id="NAME" parent="HEAD" column="2" label="名前"/>
    <item type="TAG" id="LINE" parent="HEAD" startRow="2" endRow="-2"/>
    <item type="Normal" id="SUM" parent="LINE" column="2" label="額"/>
    <item type="TAG" id="LAST" parent="HEAD" startRow="-1" endRow="-1" lastRecord="1"/>
    <item type="Normal" id="TOTAL" parent="LAST" column="2" label="合計額"/>
  </report>
</define>
)";
    }

    /// Fails the test if the text to find doesn't stand in the file once.
    void Edit(const LintEdit& edit)
    {
        std::string& strText = m_mapFile[edit.strFile];
        const std::size_t nAt = strText.find(edit.strFind);
        ASSERT_NE(nAt, std::string::npos) << edit.strFind << " in " << edit.strFile;
        ASSERT_EQ(strText.find(edit.strFind, nAt + 1), std::string::npos) << edit.strFind;
        strText.replace(nAt, edit.strFind.size(), edit.strReplace);
    }

    void Remove(const std::string& strFile) { m_mapFile.erase(strFile); }
    void Write(const std::string& strFile, const std::string& strText)
    {
        m_mapFile[strFile] = strText;
    }

    std::vector<host::LintFinding> Lint(const std::vector<std::string>& vecTypeId) const
    {
        const TempFolder folder;
        folder.MakeFolder("Finance");
        if (m_mapFile.lower_bound("CrossBorder/") != m_mapFile.lower_bound("CrossBorder0"))
            folder.MakeFolder("CrossBorder");
        for (const auto& [strName, strText] : m_mapFile)
            folder.Write(strName, strText);
        return host::LintFolder(folder.Path(), vecTypeId);
    }

    /// The line, from 1, of a text in a file; 0 for the empty text, -1 if it isn't there once.
    long LineOf(const std::string& strFile, const std::string& strAt) const
    {
        if (strAt.empty())
            return 0;
        const auto file = m_mapFile.find(strFile);
        if (file == m_mapFile.end())
            return -1;
        const std::string& strText = file->second;
        const std::size_t nAt = strText.find(strAt);
        if (nAt == std::string::npos || strText.find(strAt, nAt + 1) != std::string::npos)
            return -1;
        return 1 + std::count(strText.begin(),
                              strText.begin() + static_cast<std::string::difference_type>(nAt),
                              '\n');
    }

private:
    std::map<std::string, std::string> m_mapFile;
};

/// "rule file:line" of each finding, for comparison as a whole.
inline std::vector<std::string> Brief(const std::vector<host::LintFinding>& vecFinding)
{
    std::vector<std::string> vecText;
    for (const host::LintFinding& finding : vecFinding)
        vecText.push_back(finding.strRule + " " + finding.strFile + ":" +
                          std::to_string(finding.lLine));
    return vecText;
}

inline std::vector<std::string> Brief(const LintFolderText& folder,
                                      const std::vector<LintExpected>& vecExpected)
{
    std::vector<std::string> vecText;
    for (const LintExpected& expected : vecExpected)
        vecText.push_back(expected.strRule + " " + expected.strFile + ":" +
                          std::to_string(folder.LineOf(expected.strFile, expected.strAt)));
    return vecText;
}
