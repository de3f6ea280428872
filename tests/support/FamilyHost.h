// Requests of all three families through the inner entry class, by family instead of by name.
#pragma once

#include <ostream>
#include <string>

#include "FamilyDefinition.h"
#include "KZCConvertResultEka.h"
#include "KZCCsvConvMokEka.h"
#include "ResetState.h"
#include "StorePeek.h"
#include "TempFolder.h"

enum class Family
{
    Base,
    Finance,
    CrossBorder,
};

inline std::ostream& operator<<(std::ostream& stream, Family eFamily)
{
    constexpr const char* NAMES[] = {"Base", "Finance", "CrossBorder"};
    return stream << NAMES[static_cast<int>(eFamily)];
}

inline constexpr Family FAMILIES[] = {Family::Base, Family::Finance, Family::CrossBorder};

/// A filer whose fields every family takes; the base family leaves the last six out.
struct Filer
{
    const char* szZeimushoCD = "00101";
    const char* szNozeishaId = "1234567890123456";
    const char* szKojinBango = "123456789012";
    const char* szHojinBango = nullptr;
    const char* szNozeishaNm = "青葉商会";
    const char* szNozeishaAdr = "青葉市1-2-3";
    const char* szDaihyoNm = "青葉太郎";
    const char* szDairiId = "6543210987654321";
    const char* szDairiNm = "白樺税務事務所";
    const char* szDairiAdr = "紅葉市4-5";
    const char* szTetsuzuki = nullptr;
    const char* szSoftName = "Soft";
    const char* szEra = "5";
    const char* szYear = "6";
    const char* szMonth = "3";
    const char* szDay = "4";
    const char* szZip1 = "123";
    const char* szZip2 = "4567";
};

/// The filer with the procedure of the family's small form.
inline Filer FilerOf(Family eFamily)
{
    constexpr const char* PROCEDURES[] = {"PGE5030", "PGE2015", "PGE1650"};
    return {.szTetsuzuki = PROCEDURES[static_cast<int>(eFamily)]};
}

/// What a request gave back.
struct Answer
{
    std::string strResult;
    std::string strDetail;
    std::string strRecordCount;
    std::string strProcId;
    std::string strMok;

    bool operator==(const Answer&) const = default;
};

inline std::ostream& operator<<(std::ostream& stream, const Answer& answer)
{
    return stream << "{" << answer.strResult << "|" << answer.strDetail << "|"
                  << answer.strRecordCount << "|" << answer.strProcId << "|" << answer.strMok
                  << "}";
}

inline Answer Refused(const std::string& strDetail)
{
    return {"E_FAIL", strDetail, "", "", ""};
}

/// Any class with the fourteen operations: the inner one or the exported one.
template <class Entry, class Result, class Read>
class Requests
{
public:
    Requests(Entry& entry, Read read) : m_entry(entry), m_read(read) {}

    Answer Check(Family eFamily, const char* szCsv)
    {
        switch (eFamily) {
            case Family::Base:
                return m_read(m_entry.CsvCheck(szCsv));
            case Family::Finance:
                return m_read(m_entry.CsvCheckFinance(szCsv));
            case Family::CrossBorder:
                return m_read(m_entry.CsvCheckCrossBorder(szCsv));
        }
        return {};
    }
    Answer ElCheck(Family eFamily, const char* szCsv, long lKey)
    {
        switch (eFamily) {
            case Family::Base:
                return m_read(m_entry.ELCsvCheck(szCsv, lKey));
            case Family::Finance:
                return m_read(m_entry.ELCsvCheckFinance(szCsv, lKey));
            case Family::CrossBorder:
                return m_read(m_entry.ELCsvCheckCrossBorder(szCsv, lKey));
        }
        return {};
    }
    Answer Convert(Family eFamily, const char* szCsv, const char* szMok, const Filer& f)
    {
        switch (eFamily) {
            case Family::Base:
                return m_read(m_entry.CsvConvMok(
                    szCsv, szMok, f.szZeimushoCD, f.szNozeishaId, f.szKojinBango, f.szHojinBango,
                    f.szNozeishaNm, f.szNozeishaAdr, f.szDaihyoNm, f.szDairiId, f.szDairiNm,
                    f.szDairiAdr, f.szTetsuzuki, f.szSoftName));
            case Family::Finance:
                return m_read(m_entry.CsvConvMokFinance(
                    szCsv, szMok, f.szZeimushoCD, f.szNozeishaId, f.szKojinBango, f.szHojinBango,
                    f.szNozeishaNm, f.szNozeishaAdr, f.szDaihyoNm, f.szDairiId, f.szDairiNm,
                    f.szDairiAdr, f.szTetsuzuki, f.szEra, f.szYear, f.szMonth, f.szDay,
                    f.szSoftName, f.szZip1, f.szZip2));
            case Family::CrossBorder:
                return m_read(m_entry.CsvConvMokCrossBorder(
                    szCsv, szMok, f.szZeimushoCD, f.szEra, f.szYear, f.szMonth, f.szDay,
                    f.szNozeishaId, f.szKojinBango, f.szHojinBango, f.szNozeishaNm, f.szZip1,
                    f.szZip2, f.szNozeishaAdr, f.szDaihyoNm, f.szDairiId, f.szDairiNm, f.szDairiAdr,
                    f.szTetsuzuki, f.szSoftName));
        }
        return {};
    }
    Answer ElConvert(Family eFamily, long lKey, const Filer& f)
    {
        switch (eFamily) {
            case Family::Base:
                return m_read(m_entry.ELCsvConvMok(lKey, f.szZeimushoCD, f.szNozeishaId,
                                                   f.szKojinBango, f.szHojinBango, f.szNozeishaNm,
                                                   f.szNozeishaAdr, f.szDaihyoNm, f.szDairiId,
                                                   f.szDairiNm, f.szDairiAdr, f.szTetsuzuki));
            case Family::Finance:
                return m_read(m_entry.ELCsvConvMokFinance(
                    lKey, f.szZeimushoCD, f.szNozeishaId, f.szKojinBango, f.szHojinBango,
                    f.szNozeishaNm, f.szNozeishaAdr, f.szDaihyoNm, f.szDairiId, f.szDairiNm,
                    f.szDairiAdr, f.szTetsuzuki, f.szEra, f.szYear, f.szMonth, f.szDay,
                    f.szSoftName, f.szZip1, f.szZip2));
            case Family::CrossBorder:
                return m_read(m_entry.ELCsvConvMokCrossBorder(
                    lKey, f.szZeimushoCD, f.szEra, f.szYear, f.szMonth, f.szDay, f.szNozeishaId,
                    f.szKojinBango, f.szHojinBango, f.szNozeishaNm, f.szZip1, f.szZip2,
                    f.szNozeishaAdr, f.szDaihyoNm, f.szDairiId, f.szDairiNm, f.szDairiAdr,
                    f.szTetsuzuki, f.szSoftName));
        }
        return {};
    }
    Answer Write(const char* szPath, const char* szData)
    {
        return m_read(m_entry.CsvWrite(szPath, szData));
    }
    void Terminate() { m_entry.Terminate(); }

private:
    Entry& m_entry;
    Read m_read;
};

/// A host of the inner class, with a small form of each family and a good file for each.
class FamilyHost : public ResetState
{
protected:
    ~FamilyHost() override
    {
        m_pBehindRequest = nullptr;
        KZCCsvConvMokEka::ReleaseResult();
    }

    static Answer Read(const KZCConvertResultEka* pRecord)
    {
        if (m_pBehindRequest != nullptr)
            m_pBehindRequest();
        if (pRecord == nullptr)
            return {"null", "", "", "", ""};
        return {pRecord->GetResult(), pRecord->GetDetailErrorInfo(), pRecord->GetRecordCount(),
                pRecord->GetProcId(), pRecord->GetMokData()};
    }

    std::string Csv(const std::string& strBytes, const std::string& strName = "in.csv") const
    {
        return m_folder.Write(strName, strBytes);
    }
    /// A record of the family's small form.
    static std::string Record(Family eFamily, const std::string& strCells = "12,ab")
    {
        constexpr const char* TYPE_IDS[] = {"003", "101", "301"};
        return std::string(TYPE_IDS[static_cast<int>(eFamily)]) + "," + strCells + "\n";
    }
    /// A file with one good record.
    std::string GoodCsv(Family eFamily) const
    {
        std::ostringstream name;
        name << eFamily << ".csv";
        return Csv(Record(eFamily), name.str());
    }
    Answer Check(Family eFamily, const std::string& strCsv)
    {
        return m_requests.Check(eFamily, strCsv.c_str());
    }
    Answer ElCheck(Family eFamily, const std::string& strCsv, long lKey)
    {
        return m_requests.ElCheck(eFamily, strCsv.c_str(), lKey);
    }
    Answer Convert(Family eFamily, const std::string& strCsv, const Filer& filer)
    {
        return m_requests.Convert(eFamily, strCsv.c_str(), m_strMok.c_str(), filer);
    }
    Answer ElConvert(Family eFamily, long lKey, const Filer& filer)
    {
        return m_requests.ElConvert(eFamily, lKey, filer);
    }
    Answer Write(const char* szPath, const char* szData)
    {
        return m_requests.Write(szPath, szData);
    }

    /// Called when a request has come back, before its record is read.
    static inline void (*m_pBehindRequest)() = nullptr;

    TempFolder m_folder;
    FamilyBundle m_bundle;
    std::string m_strMok = m_folder.Path("out.mok");
    KZCCsvConvMokEka m_entry;

private:
    using Reader = Answer (*)(const KZCConvertResultEka*);

    Requests<KZCCsvConvMokEka, KZCConvertResultEka*, Reader> m_requests{m_entry, &Read};
};
