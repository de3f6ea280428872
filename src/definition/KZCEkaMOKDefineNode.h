// Base of the nodes of a definition tree; one node stands for one item element.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "validator/KZCEkaValidator.h"

class KZCEkaCsvFile;
class KZCEkaXDOM;
class SearchBounds;

/// WRITE_DESCEND: the node isn't to open itself, only to look for groups in range below it.
enum eWriteMode : int
{
    WRITE_NORMAL = 0,
    WRITE_DESCEND = 1,
};

/// Size of the buffer in which a tag is printed; longer tags are cut.
inline constexpr std::size_t TAG_BUFFER_SIZE = 100;

/// Checks a record and writes it as tags. Records count from 0 in the code and from 1 in the row
/// ranges. Texts returned are complete XML fragments; the empty text means that nothing was
/// written. A null csv throws FAULT.
class KZCEkaMOKDefineNode
{
public:
    KZCEkaMOKDefineNode();
    KZCEkaMOKDefineNode(const KZCEkaMOKDefineNode&) = delete;
    KZCEkaMOKDefineNode& operator=(const KZCEkaMOKDefineNode&) = delete;

    /// Copies the attributes of the cursor's item element. \return 0, or not 0 on failure.
    virtual int Initialize(KZCEkaXDOM* pDom, bool bValidate);
    virtual int ValidateCsv(const KZCEkaCsvFile* pCsv, long lRow);
    virtual std::string WriteNode(const KZCEkaCsvFile* pCsv, long lRow);
    virtual std::string WriteNodeTag(const KZCEkaCsvFile* pCsv, long lRow, eWriteMode eMode);
    /// The escaped cell of the node's column.
    virtual std::string MakeNodeValue(const KZCEkaCsvFile* pCsv, long lRow);
    virtual ~KZCEkaMOKDefineNode();

    /// A new node of the kind that the cursor's item element names, or null. Never throws.
    static std::unique_ptr<KZCEkaMOKDefineNode> CreateNode(KZCEkaXDOM* pDom, bool bValidate);

    /// Hangs the node below this one or its descendants, by parent name and generation.
    /// \param pChild  Parents that were found take shares of it.
    /// \return nDefault when no parent was found, or when the search met one of DefinitionLimits.
    int LocateNode(KZCEkaMOKDefineNode* pChild, int nDefault);
    /// The same by name alone; with bValidate a node without a parent name hangs directly here.
    int LocateNodeFinance(KZCEkaMOKDefineNode* pChild, bool bValidate, int nDefault);

    const char* GetName() const { return m_strName.c_str(); }
    const char* GetParentName() const { return m_strParent.c_str(); }
    /// From 0, or -1 for none.
    std::int64_t GetColumn() const { return m_nColumn; }
    std::int64_t getStartRow() const { return m_nStartRow; }
    std::int64_t getEndRow() const { return m_nEndRow; }
    std::string getRepeatTopTag() const { return m_strRepeatTopTag; }
    std::int64_t getLastRecord() const { return m_nLastRecord; }
    bool isSettingRecordRange() const { return m_nStartRow != 0 && m_nEndRow != 0; }
    /// Negative row numbers count from the end, -1 being the last record.
    bool isWithInRecordRange(const KZCEkaCsvFile* pCsv, long lRow) const;
    static std::int64_t convRecordRow(const KZCEkaCsvFile* pCsv, std::int64_t nRow);

    /// The node and all below it, a shared one as often as it has parents.
    std::int64_t CountNodes() const;

    /// Closing tags of all tags left open, the last opened first.
    static std::string getCloseTags();
    static void clearCloseTags();

    std::uint32_t GenerationAddref() { return ++m_nRefCount; }
    std::uint32_t GenerationRelease() { return --m_nRefCount; }

    /// One parent's share of a node. The last share to go destroys the node.
    class Share
    {
    public:
        explicit Share(KZCEkaMOKDefineNode* pNode);
        Share(Share&& other) noexcept;
        Share& operator=(Share&& other) noexcept;
        ~Share();

        KZCEkaMOKDefineNode* operator->() const { return m_pNode; }
        KZCEkaMOKDefineNode& operator*() const { return *m_pNode; }

    private:
        KZCEkaMOKDefineNode* m_pNode;
    };

protected:
    /// The child belongs to the record's generation, or to every one.
    static bool FitsGeneration(const KZCEkaMOKDefineNode& child,
                               const KZCEkaCsvFile& csv,
                               long lRow);
    /// Logs and throws FAULT for null.
    static void RequireCsv(const KZCEkaCsvFile* pCsv, const char* szFunction);
    /// Throws FAULT for null, as those kinds do that say nothing about it.
    static void RequireCsvQuietly(const KZCEkaCsvFile* pCsv);
    /// The node's own checks as a group's: with the first child's column to fall back on.
    int ValidateGroup(const KZCEkaCsvFile* pCsv, long lRow);
    /// "<name>" and "</name>", cut as their buffer cuts them.
    static std::string OpenTag(const std::string& strName);
    static std::string CloseTag(const std::string& strName);
    /// The value and then the body between both tags.
    static std::string Element(const std::string& strName,
                               std::string_view strValue,
                               std::string_view strBody);

    std::uint32_t m_nRefCount = 0;  ///< parents that hold this node
    std::string m_strName;
    std::string m_strParent;
    std::int64_t m_nColumn = -1;
    bool m_bZeroSuppress = false;
    std::string m_strGeneration;
    std::vector<Share> m_vecChild;
    std::unique_ptr<KZCEkaValidator> m_pValidator;  ///< null when the node has no checks
    std::int64_t m_nStartRow = 0;
    std::int64_t m_nEndRow = 0;
    std::int64_t m_nStepRow = 0;
    std::string m_strValue;
    std::int64_t m_nLastRecord = 0;
    std::int64_t m_nLastRecordRow = 0;  ///< used by the Finance report node only
    std::string m_strRepeatTopTag;

    /// Names of tags opened and left open across records.
    static inline std::vector<std::string> m_listCloseTag;

private:
    int Locate(KZCEkaMOKDefineNode* pChild, int nDefault, SearchBounds& bounds);
    int LocateFinance(KZCEkaMOKDefineNode* pChild,
                      bool bValidate,
                      int nDefault,
                      SearchBounds& bounds);
    /// \return nResult; nothing is attached where the tree would get too deep.
    int Attach(KZCEkaMOKDefineNode* pChild, int nResult, SearchBounds& bounds);
};
