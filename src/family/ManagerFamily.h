// What the steps of a filing manager take from the family of their class.
#pragma once

#include <string>

struct FamilyTraits;
struct _ConvertTable;
class KZCConvertInfo;
class KZCEkaITData;

/// One constant for each class of managers; its operations hand it to the steps that all share.
struct ManagerFamily
{
    const FamilyTraits& traits;
    /// The conversion store; one of the family if there is none.
    KZCConvertInfo* (*pStore)();

    // Names in the log.
    const char* szInitForCheck;
    const char* szInitForMok;
    const char* szValidateCsv;
    const char* szMakeMok;
    const char* szMismatch;  ///< of MakeMok where it refuses the procedure id

    /// The procedure id that the host says it files. Valid until the IT section changes.
    const char* (*pHostProcedure)(const KZCEkaITData& it);
    /// What the XML library calls the document in its messages. Valid as long.
    const char* (*pDocumentName)(const KZCEkaITData& it);
    /// The document as it is assembled, before the XML library has seen it.
    std::string (*pMakeText)(const _ConvertTable& table);
};
