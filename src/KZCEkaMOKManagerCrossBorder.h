// Runs one check or conversion of the CrossBorder family.
#pragma once

#include <string>

#include "KZCEkaITDataCrossBorder.h"
#include "KZCEkaMOKManagerFinance.h"

/// As the Finance family with this family's classes. A file that its reader refused for a reason of
/// its own keeps that reason alone.
class KZCEkaMOKManagerCrossBorder : public KZCEkaMOKManagerFinance
{
public:
    int InitForCheck(bool bPublic, const char* szCsvPathName, long lCsvDistKey) override;
    int InitForMok(bool bPublic,
                   const char* szCsvPathName,
                   const char* szMokPathName,
                   long lCsvDistKey) override;
    int ValidateCsv() override;
    int MakeMok() override;
    void TerminateDifferentData() override;
    /// As SetITData, with this family's fields.
    virtual int SetITDataCrossBorder(KZCEkaITDataCrossBorder_t eId, const char* szValue);
    virtual int LoadCsvWithDefinitionCrossBorder_Check();
    virtual int LoadCsvWithDefinitionCrossBorder_Conv(bool bRead);

private:
    static std::string MakeText(const _ConvertTable& table);
    static void RecordRefusedFile();

    static const ManagerFamily FAMILY;
    static const Reading READING;
};
