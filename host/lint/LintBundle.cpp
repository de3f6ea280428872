#include "lint/LintBundle.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <set>
#include <utility>

#include "KZCMacOSNative.h"
#include "definition/SearchBounds.h"
#include "family/BundleFiles.h"
#include "family/FamilyFolder.h"
#include "family/RecordLimit.h"
#include "form/FormDefinition.h"
#include "text/CText.h"

namespace host {
namespace {

/// Farther numbers say no more, and would overflow when they are reckoned with.
long InReach(long lNumber)
{
    constexpr long NUMBER_MAX = 1'000'000'000;
    return std::clamp(lNumber, -NUMBER_MAX, NUMBER_MAX);
}

constexpr std::array<Family, 2> FOLDER_FAMILIES = {Family::Finance, Family::CrossBorder};

constexpr LintTexts MISSING_FILE = {
    {"The file is missing.", "ファイルがありません。"},
    {"Add it; the library needs it for {1}.", "追加してください（必要とするもの：{1}）。"}};
constexpr LintTexts MISSING_FOLDER = {
    {"The folder {1} is missing.", "フォルダー{1}がありません。"},
    {"Add it with two files for each procedure; without it no request of the family can be carried "
     "out.",
     "手続ごとの2つのファイルとともに追加してください。ないとこの系統の要求を実行できません。"}};
constexpr LintTexts AMBIGUOUS = {
    {"The file fits procedure {1} and the ending {2}, and so does {3}, which comes first by name: "
     "this one is never read.",
     "手続{1}・末尾{2}に該当しますが、名前順で先の{3}も該当するため、このファイルは読まれません。"},
    {"Remove one of the two, or rename it so that it doesn't hold both texts.",
     "どちらかを削除するか、両方の文字列を含まない名前に変えてください。"}};
constexpr LintTexts STRAY = {
    {"No procedure reads this file.", "どの手続もこのファイルを読みません。"},
    {"The name has to hold a procedure's id, such as {1}, and end in vld.xml or tpl.xml. Rename or "
     "remove it.",
     "名前には手続のID（{1}など）が含まれ、末尾がvld.xmlかtpl.xmlでなければなりません。"
     "名前を変えるか削除してください。"}};
constexpr LintTexts NOT_XML = {
    {"The file can't be read as XML: {1}.", "XMLとして読み取れません：{1}。"},
    {"Correct the place; until then no request can use the file.",
     "箇所を直してください。直すまでこのファイルは使えません。"}};
constexpr LintTexts DOCTYPE = {
    {"A document type declaration stands before the root element: the library takes it for the "
     "root and finds nothing.",
     "ルート要素の前に文書型宣言があります。ライブラリはこれをルートとみなし、何も見つけません。"},
    {"Remove it.", "削除してください。"}};
constexpr LintTexts PROLOG = {
    {"A comment or processing instruction stands before the root element: the library takes it for "
     "the root and finds nothing.",
     "ルート要素の前にコメントまたは処理命令があります。"
     "ライブラリはこれをルートとみなし、何も見つけません。"},
    {"Move it behind the root element's start tag.", "ルート要素の開始タグの後に移してください。"}};
constexpr LintTexts NO_REPORT = {
    {"The file has no report element below its root.", "ルートの下にreport要素がありません。"},
    {"Add one; elements of other names are skipped.",
     "追加してください。他の名前の要素は読み飛ばされます。"}};

constexpr LintTexts LATER_PARENT = {
    {"The parent \"{1}\" stands later, in line {2}: the load fails.",
     "親「{1}」が後の行（{2}行目）にあるため、読み込みに失敗します。"},
    {"Move the parent before this item.", "親をこのitemより前に移してください。"}};
constexpr LintTexts NO_PARENT = {
    {"There is no element \"{1}\" to hang the item below: the load fails.",
     "親となる「{1}」がないため、読み込みに失敗します。"},
    {"Give the id of an item that stands before, or the reportId \"{2}\".",
     "前にあるitemのid、またはreportId「{2}」を指定してください。"}};
constexpr LintTexts EMPTY_PARENT = {
    {"The item names no parent: the load fails.", "親の指定がないため、読み込みに失敗します。"},
    {"Give the id of an item that stands before, or the reportId \"{2}\".",
     "前にあるitemのid、またはreportId「{2}」を指定してください。"}};
constexpr LintTexts OTHER_GENERATION = {
    {"The parent \"{1}\" in line {2} is of another generation: the load fails.",
     "親「{1}」（{2}行目）の世代が異なるため、読み込みに失敗します。"},
    {"Add a parent of this generation, or take the generation away from one of the two.",
     "この世代の親を追加するか、どちらかのgenerationを外してください。"}};
constexpr LintTexts AMBIGUOUS_PARENT = {
    {"The parent's name \"{1}\" stands in line {2} and in line {3}: the item hangs below the one "
     "in line {3}.",
     "親の名前「{1}」が{2}行目と{3}行目にあります。このitemは{3}行目の下に入ります。"},
    {"Give the two different ids, or move the item if it is meant for the other.",
     "異なるidにするか、もう一方のためのitemなら移してください。"}};
constexpr LintTexts SHADOWED_PARENT = {
    {"The id is the reportId: items that name it as their parent hang below the report, not below "
     "this item.",
     "idがreportIdと同じです。これを親とするitemは、このitemではなくreportの下に入ります。"},
    {"Give the item another id.", "別のidにしてください。"}};

constexpr LintTexts TOO_DEEP = {
    {"The item hangs more than {1} levels below the report: the load fails.",
     "itemがreportの下{1}階層を超えるため、読み込みに失敗します。"},
    {"Hang it below a parent that stands higher.", "より上の階層の親の下に入れてください。"}};
constexpr LintTexts TOO_LONG = {
    {"The search for the parent \"{2}\" passes more than {1} items: the load fails.",
     "親「{2}」の検索が{1}個を超えるitemを通るため、読み込みに失敗します。"},
    {"Let fewer names stand once per generation above the item, or use fewer items.",
     "itemより上で世代ごとに置かれる名前を減らすか、itemを減らしてください。"}};

LintCheck ReadLintCheck(const XmlElement& element, long lItemColumn, bool bOuter)
{
    LintCheck check;
    check.pElement = &element;
    check.pKeyword = FindCatalogueItem(element.Attribute("id"));
    check.bOuter = bOuter;
    const long lColumn = ReadNumber(element, "column");
    check.bDropped = bOuter && lColumn <= 0;
    check.lColumn = lColumn > 0 ? lColumn : lItemColumn;
    check.definition = ReadCheck(element, lItemColumn);
    if (!bOuter)
        for (const XmlElement& child : element.vecChild)
            if (child.strName == "outer")
                check.vecOuter.push_back(ReadLintCheck(child, 0, true));
    return check;
}

LintItem ReadItem(const XmlElement& element, bool bChecks)
{
    LintItem item;
    item.pElement = &element;
    item.strType = element.Attribute("type");
    item.strId = element.Attribute("id");
    item.strParent = element.Attribute("parent");
    item.strGeneration = element.Attribute("generation");
    item.lColumn = std::max(0L, ReadNumber(element, "column"));
    item.lStartRow = ReadNumber(element, "startRow");
    item.lEndRow = ReadNumber(element, "endRow");
    item.lLastRecord = ReadNumber(element, "lastRecord");
    if (bChecks)
        for (const XmlElement& child : element.vecChild)
            if (child.strName == "valid")
                item.vecCheck.push_back(ReadLintCheck(child, item.lColumn, false));
    return item;
}

LintForm ReadForm(const LintFile& file, const XmlElement& element)
{
    LintForm form;
    form.pElement = &element;
    form.strTypeId = file.eFamily == Family::Base ? element.Attribute("id") : file.strTypeId;
    form.strReportId = element.Attribute("reportId");
    form.lColumnNum = ReadNumber(element, "columnNum");
    if (file.eFamily != Family::Base) {
        form.lStartRow = ReadNumber(element, "startRow");
        form.lEndRow = ReadNumber(element, "endRow");
        form.lStepRow = ReadNumber(element, "stepRow");
        form.lLastRecord = ReadNumber(element, "lastRecord");
    }
    for (const XmlElement& child : element.vecChild)
        if (child.strName == "item")
            form.vecItem.push_back(ReadItem(child, file.HasChecks()));
    return form;
}

/// Reads a file's reports. False if it is no XML.
bool ReadForms(LintFile& file, const std::vector<std::string>& vecTypeId, LintReport& report)
{
    if (!file.xml.root)
        return false;
    bool bReport = false;
    for (const XmlElement& element : file.xml.root->vecChild) {
        if (element.strName != "report")
            continue;
        bReport = true;
        const bool bWanted =
            file.eFamily != Family::Base || vecTypeId.empty() ||
            std::ranges::find(vecTypeId, element.Attribute("id")) != vecTypeId.end();
        if (bWanted)
            file.vecForm.push_back(ReadForm(file, element));
    }
    if (!bReport)
        report.Add(LintRule::NoReport, {file.strName, file.xml.root->lLine}, NO_REPORT);
    return true;
}

/// Reads an XML file and reports what keeps the library from reading it.
XmlFile ReadXml(const std::string& strPath, const std::string& strName, LintReport& report)
{
    XmlFile xml = ReadXmlFile(strPath);
    if (!xml.root) {
        const LintPlace place = {strName, xml.problem.lLine};
        if (xml.problem.bDoctype)
            report.Add(LintRule::Doctype, place, DOCTYPE);
        else
            report.Add(LintRule::NotXml, place, NOT_XML, {xml.problem.strMessage});
    } else if (xml.lPrologLine > 0) {
        report.Add(LintRule::Prolog, {strName, xml.lPrologLine}, PROLOG);
    }
    return xml;
}

bool IsFile(const std::string& strPath)
{
    std::error_code error;
    return std::filesystem::is_regular_file(strPath, error);
}

/// Reads the files of the two families that have a folder.
class FolderReader
{
public:
    FolderReader(LintBundle& bundle, const std::vector<std::string>& vecTypeId, LintReport& report)
        : m_bundle(bundle), m_vecTypeId(vecTypeId), m_report(report)
    {
    }

    void Read(Family eFamily)
    {
        const std::vector<std::string> vecWanted = WantedTypeIds(eFamily);
        if (vecWanted.empty())
            return;
        m_strFolder = eFamily == Family::Finance ? BundleFiles::FINANCE : BundleFiles::CROSS_BORDER;
        const std::string strFolderPath = m_bundle.strPath + "/" + m_strFolder;
        if (!KZCMacOSNative::getFilesUnderFolder(strFolderPath.c_str(), m_vecPath)) {
            m_report.Add(LintRule::MissingFile, {m_strFolder, 0}, MISSING_FOLDER, {m_strFolder});
            return;
        }
        std::string strExample;
        for (const std::string& strTypeId : vecWanted)
            strExample = ReadProcedure(eFamily, strTypeId);
        if (m_vecTypeId.empty())
            ReportStrays(strExample);
    }

private:
    std::vector<std::string> WantedTypeIds(Family eFamily) const
    {
        std::vector<std::string> vecKnown = Definitions(std::string()).TypeIds(eFamily);
        if (!m_vecTypeId.empty())
            std::erase_if(vecKnown, [this](const std::string& strTypeId) {
                return std::ranges::find(m_vecTypeId, strTypeId) == m_vecTypeId.end();
            });
        return vecKnown;
    }

    /// \return The procedure's id.
    std::string ReadProcedure(Family eFamily, const std::string& strTypeId)
    {
        PROC_INFO info;
        KZCDefinitionManager::getProcInfo(
            strTypeId, info,
            eFamily == Family::Finance ? CALL_TYPE_FINANCE : CALL_TYPE_CROSSBORDER);
        LintFile file;
        file.eFamily = eFamily;
        file.strTypeId = strTypeId;
        file.info = info;
        LintProcedure procedure;
        file.eRole = LintRole::Checks;
        procedure.pChecks = ReadFile(file, FamilyFolder::VALIDATION_FILE);
        file.eRole = LintRole::Document;
        procedure.pDocument = ReadFile(file, FamilyFolder::TEMPLATE_FILE);
        m_bundle.vecProcedure.push_back(procedure);
        return info.procId;
    }

    /// Looks for a file as the library does: both texts anywhere in the whole path, and the first
    /// path that has them.
    const LintFile* ReadFile(LintFile pattern, const char* szEnd)
    {
        std::string strFirst;
        for (const std::string& strPath : m_vecPath) {
            if (strPath.find(pattern.info.procId) == std::string::npos ||
                strPath.find(szEnd) == std::string::npos)
                continue;
            m_setFound.insert(strPath);
            if (strFirst.empty())
                strFirst = strPath;
            else
                m_report.Add(LintRule::AmbiguousFile, {Name(strPath), 0}, AMBIGUOUS,
                             {pattern.info.procId, szEnd, Name(strFirst)});
        }
        if (strFirst.empty()) {
            const std::string strName =
                m_strFolder + "/" + pattern.info.procId + "_" + std::string(szEnd);
            m_report.Add(LintRule::MissingFile, {strName, 0}, MISSING_FILE,
                         {pattern.strTypeId + " (" + pattern.info.procId + ")"});
            return nullptr;
        }
        auto pFile = std::make_unique<LintFile>(std::move(pattern));
        pFile->strName = Name(strFirst);
        pFile->xml = ReadXml(strFirst, pFile->strName, m_report);
        if (!ReadForms(*pFile, m_vecTypeId, m_report))
            return nullptr;
        m_bundle.vecFile.push_back(std::move(pFile));
        return m_bundle.vecFile.back().get();
    }

    void ReportStrays(const std::string& strExample)
    {
        for (const std::string& strPath : m_vecPath)
            if (strPath.ends_with(".xml") && !m_setFound.contains(strPath))
                m_report.Add(LintRule::StrayFile, {Name(strPath), 0}, STRAY, {strExample});
    }

    std::string Name(const std::string& strPath) const
    {
        return m_strFolder + "/" + std::filesystem::path(strPath).filename().string();
    }

    LintBundle& m_bundle;
    const std::vector<std::string>& m_vecTypeId;
    LintReport& m_report;
    std::string m_strFolder;
    std::vector<std::string> m_vecPath;
    std::set<std::string> m_setFound;
};

void ReadBase(LintBundle& bundle, const std::vector<std::string>& vecTypeId, LintReport& report)
{
    const auto isBase = [](const std::string& strTypeId) {
        return FamilyOfTypeId(strTypeId) == Family::Base;
    };
    if (!vecTypeId.empty() && !std::ranges::any_of(vecTypeId, isBase))
        return;
    const std::string strPath = bundle.strPath + "/" + BundleFiles::BASE_DEFINITION;
    if (!IsFile(strPath)) {
        report.Add(LintRule::MissingFile, {BundleFiles::BASE_DEFINITION, 0}, MISSING_FILE,
                   {"001-009"});
        return;
    }
    auto pFile = std::make_unique<LintFile>();
    pFile->strName = BundleFiles::BASE_DEFINITION;
    pFile->xml = ReadXml(strPath, pFile->strName, report);
    if (ReadForms(*pFile, vecTypeId, report))
        bundle.vecFile.push_back(std::move(pFile));
}

/// The library's search for a parent, with its bounds.
class Placing
{
public:
    Placing(const LintFile& file, LintForm& form) : m_file(file), m_form(form) {}

    /// \return Whether a parent was found.
    bool Place(std::size_t nItem)
    {
        m_bounds = {};
        const bool bPlaced = Search(REPORT, nItem, NOT_FOUND) != NOT_FOUND;
        m_form.vecItem[nItem].bPlaced = bPlaced;
        m_form.bTooDeep |= m_bounds.IsStopped();
        return bPlaced;
    }

    /// Why the search for the last item was given up, if it was: the levels, or its length.
    bool IsTooDeep() const { return m_bounds.IsTooDeep(); }

    /// Hangs an item below one that was not placed itself, so that one mistake is one finding.
    bool PlaceBelowUnplaced(std::size_t nItem)
    {
        m_bounds = {};
        for (std::size_t nRoot = nItem; nRoot-- > 0;)
            if (!m_form.vecItem[nRoot].bPlaced && Search(nRoot, nItem, NOT_FOUND) != NOT_FOUND)
                return true;
        return false;
    }

private:
    static constexpr std::size_t REPORT = static_cast<std::size_t>(-1);
    static constexpr int NOT_FOUND = -1;
    static constexpr int ATTACHED_TO_ONE = 1;

    int Search(std::size_t nNode, std::size_t nItem, int nDefault)
    {
        return m_file.eFamily == Family::Base ? SearchBase(nNode, nItem, nDefault)
                                              : SearchFamily(nNode, nItem, nDefault);
    }

    int SearchBase(std::size_t nNode, std::size_t nItem, int nDefault)
    {
        const LintItem& item = m_form.vecItem[nItem];
        int nResult = nDefault;
        if (item.strParent == Name(nNode)) {
            const std::string& strGeneration = Generation(nNode);
            if (strGeneration.empty() || strGeneration == item.strGeneration) {
                Attach(nNode, nItem);
                return 0;
            }
            if (item.strGeneration.empty()) {
                Attach(nNode, nItem);
                nResult = ATTACHED_TO_ONE;
            }
        }
        return SearchChildren(nNode, nItem, nResult);
    }

    int SearchFamily(std::size_t nNode, std::size_t nItem, int nDefault)
    {
        const LintItem& item = m_form.vecItem[nItem];
        const bool bFlat = m_file.eRole == LintRole::Checks && item.strParent.empty();
        if (bFlat || item.strParent == Name(nNode)) {
            Attach(nNode, nItem);
            return 0;
        }
        return SearchChildren(nNode, nItem, nDefault);
    }

    int SearchChildren(std::size_t nNode, std::size_t nItem, int nResult)
    {
        const auto& vecChild = Children(nNode);
        for (std::size_t nChild = vecChild.size(); nChild > 0 && nResult != 0; --nChild) {
            if (!m_bounds.Step())
                return 0;
            if (vecChild[nChild - 1] == nItem || !m_bounds.HasRoomBelow())
                continue;
            m_bounds.Enter();
            nResult = Search(vecChild[nChild - 1], nItem, nResult);
            m_bounds.Leave();
        }
        return nResult;
    }

    void Attach(std::size_t nNode, std::size_t nItem)
    {
        if (!m_bounds.HasRoomBelow())
            return;
        Children(nNode).push_back(nItem);
        m_form.vecItem[nItem].bTop |= nNode == REPORT;
    }

    std::vector<std::size_t>& Children(std::size_t nNode)
    {
        return nNode == REPORT ? m_form.vecTop : m_form.vecItem[nNode].vecChild;
    }
    const std::string& Name(std::size_t nNode) const
    {
        return nNode == REPORT ? m_form.strReportId : m_form.vecItem[nNode].strId;
    }
    const std::string& Generation(std::size_t nNode) const
    {
        static const std::string NONE;
        return nNode == REPORT ? NONE : m_form.vecItem[nNode].strGeneration;
    }

    const LintFile& m_file;
    LintForm& m_form;
    SearchBounds m_bounds;
};

void ReportBeyondLimit(const LintFile& file,
                       const LintItem& item,
                       bool bTooDeep,
                       LintReport& report)
{
    const LintPlace place = item.At(file.strName);
    if (bTooDeep)
        report.Add(LintRule::BeyondLimit, place, TOO_DEEP,
                   {std::to_string(DefinitionLimits::TREE_DEPTH)});
    else
        report.Add(LintRule::BeyondLimit, place, TOO_LONG,
                   {std::to_string(DefinitionLimits::SEARCH_STEPS), item.strParent});
}

void ReportUnplaced(const LintFile& file,
                    const LintForm& form,
                    std::size_t nItem,
                    LintReport& report)
{
    const LintItem& item = form.vecItem[nItem];
    const LintPlace place = item.At(file.strName);
    const auto parent = std::ranges::find_if(form.vecItem, [&](const LintItem& other) {
        return &other != &item && other.strId == item.strParent;
    });
    if (item.strParent.empty()) {
        report.Add(LintRule::MissingParent, place, EMPTY_PARENT, {"", form.strReportId});
        return;
    }
    if (parent == form.vecItem.end()) {
        report.Add(LintRule::MissingParent, place, NO_PARENT, {item.strParent, form.strReportId});
        return;
    }
    const bool bLater = parent->pElement->lLine > item.pElement->lLine || &*parent > &item;
    report.Add(bLater ? LintRule::LaterParent : LintRule::MissingParent, place,
               bLater ? LATER_PARENT : OTHER_GENERATION,
               {item.strParent, std::to_string(parent->pElement->lLine)});
}

/// Two parents before the item that fit it alike.
void ReportAmbiguous(const LintFile& file,
                     const LintForm& form,
                     std::size_t nItem,
                     LintReport& report)
{
    const LintItem& item = form.vecItem[nItem];
    if (!item.strId.empty() && item.strId == form.strReportId)
        report.Add(LintRule::AmbiguousParent, item.At(file.strName), SHADOWED_PARENT);
    if (item.strParent.empty() || item.strParent == form.strReportId)
        return;
    const LintItem* pTaken = nullptr;
    for (const LintItem& parent : form.vecItem)
        if (std::ranges::find(parent.vecChild, nItem) != parent.vecChild.end())
            pTaken = &parent;
    if (pTaken == nullptr)
        return;
    for (std::size_t nOther = 0; nOther < nItem; ++nOther) {
        const LintItem& other = form.vecItem[nOther];
        const bool bRival =
            &other != pTaken && other.strId == item.strParent &&
            (file.eFamily != Family::Base || other.strGeneration == pTaken->strGeneration);
        if (!bRival)
            continue;
        report.Add(LintRule::AmbiguousParent, item.At(file.strName), AMBIGUOUS_PARENT,
                   {item.strParent, std::to_string(other.pElement->lLine),
                    std::to_string(pTaken->pElement->lLine)});
        return;
    }
}

/// Letters to change, add or take away to make one of the other.
std::size_t Distance(const std::string& strFirst, const std::string& strSecond)
{
    std::vector<std::size_t> vecRow(strSecond.size() + 1);
    for (std::size_t n = 0; n < vecRow.size(); ++n)
        vecRow[n] = n;
    for (std::size_t nFirst = 0; nFirst < strFirst.size(); ++nFirst) {
        std::size_t nDiagonal = std::exchange(vecRow[0], nFirst + 1);
        for (std::size_t nSecond = 0; nSecond < strSecond.size(); ++nSecond) {
            const auto lower = [](char cLetter) {
                return std::tolower(static_cast<unsigned char>(cLetter));
            };
            const std::size_t nCost = lower(strFirst[nFirst]) == lower(strSecond[nSecond]) ? 0 : 1;
            const std::size_t nBest =
                std::min({vecRow[nSecond] + 1, vecRow[nSecond + 1] + 1, nDiagonal + nCost});
            nDiagonal = std::exchange(vecRow[nSecond + 1], nBest);
        }
    }
    return vecRow.back();
}

}  // namespace

long ReadNumber(const XmlElement& element, const char* szAttribute)
{
    return InReach(CText::ReadLong(element.Attribute(szAttribute).c_str()));
}

long LintFile::MaxRecord() const
{
    return eFamily == Family::Base ? BASE_RECORDS_MAX : static_cast<long>(info.lMaxRecord);
}

LintBundle ReadLintBundle(const std::string& strPath,
                          const std::vector<std::string>& vecTypeId,
                          LintReport& report)
{
    LintBundle bundle;
    bundle.strPath = strPath;
    ReadBase(bundle, vecTypeId, report);
    for (const Family eFamily : FOLDER_FAMILIES)
        FolderReader(bundle, vecTypeId, report).Read(eFamily);
    const std::string strOffices = strPath + "/" + BundleFiles::TAX_OFFICES;
    if (IsFile(strOffices))
        bundle.offices = ReadXml(strOffices, BundleFiles::TAX_OFFICES, report);
    else
        report.Add(LintRule::MissingFile, {BundleFiles::TAX_OFFICES, 0}, MISSING_FILE,
                   {"taxoffice, taxofficenm, zeimusho_cd"});
    return bundle;
}

void PlaceItems(const LintFile& file, LintForm& form, LintReport& report)
{
    Placing placing(file, form);
    for (std::size_t nItem = 0; nItem < form.vecItem.size() && !form.bTooDeep; ++nItem) {
        const bool bPlaced = placing.Place(nItem);
        if (form.bTooDeep)
            ReportBeyondLimit(file, form.vecItem[nItem], placing.IsTooDeep(), report);
        else if (bPlaced)
            ReportAmbiguous(file, form, nItem, report);
        else if (!placing.PlaceBelowUnplaced(nItem))
            ReportUnplaced(file, form, nItem, report);
    }
}

const LintForm* FormOfRecord(const LintFile& checks, long lRecord, long lCount)
{
    const auto nForm = ::FormOfRecord(checks.vecForm, lRecord, lCount);
    return nForm ? &checks.vecForm[*nForm] : nullptr;
}

long ColumnsOfRecord(const LintFile& checks, long lRecord, long lCount)
{
    const LintForm* pForm = FormOfRecord(checks, lRecord, lCount);
    return pForm != nullptr ? pForm->lColumnNum : 0;
}

std::string Resembling(const std::string& strName, const std::vector<std::string>& vecName)
{
    constexpr std::size_t MOST = 2;
    std::string strBest;
    std::size_t nBest = std::min(MOST, strName.size() / 2) + 1;
    for (const std::string& strOther : vecName) {
        const std::size_t nDistance = Distance(strName, strOther);
        if (nDistance < nBest) {
            nBest = nDistance;
            strBest = strOther;
        }
    }
    return strBest;
}

}  // namespace host
