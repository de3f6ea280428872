// What all parts of the library share: the two mode flags, conversions, escaping, resource look-up.
#pragma once

#include <string>

class KZCEkaCommon
{
public:
    enum EXEC_MODE : int
    {
        EXEC_MODE_ZEKA = 1,   ///< base family
        EXEC_MODE_OTHER = 2,  ///< Finance and CrossBorder
    };

    virtual ~KZCEkaCommon() = default;

    static void setExecMode(EXEC_MODE eMode) { m_execMode = eMode; }
    static EXEC_MODE getExecMode() { return m_execMode; }

    /// True while a check runs: cells are Shift_JIS bytes then, otherwise UTF-8.
    static void SetCsvCheckFlag(bool bDuringCheck) { m_bDuringCsvCheck = bDuringCheck; }
    static bool GetCsvCheckFlag() { return m_bDuringCsvCheck; }

    /// KZCMacOSNative::dateTimeNow.
    static std::string Now(const char* szDatePattern, const char* szTimePattern);

    /// The text without white space at both ends, read in the encoding of the check flag.
    static std::string StringTrim(const char* szText);
    static std::string StringTrim(const std::string& strText);

    /// UTF-16 units of a text in the encoding of the check flag. Throws FAULT if a UTF-8 text is
    /// not well-formed; empty for null and for invalid Shift_JIS.
    static std::u16string MtoWString(const char* szText);

    /// The units that the character checks of the running family look at.
    static std::u16string ConvertSPChar(const char* szText);
    static std::u16string ConvertSPCharZeka(const char* szText);
    static std::u16string ConvertSPCharFinance(const char* szText);

    /// Escapes the five XML characters but copies CDATA sections, comments and processing
    /// instructions as they stand. The text counts up to its first NUL.
    static std::string SpecialEncoding(const std::string& strText);

    /// Path of a file of the resource folder by its id (202: KZEkaDefine.xml, 203: TaxOffices.xml),
    /// or the empty text. The second argument isn't read.
    static std::string LoadResoucePath(unsigned short nId, const char* szType);

    /// The first file of the folder, by name, whose full path holds both keys; an empty key fits.
    static std::string searchProperties(const std::string& strFolder,
                                        const std::string& strFirst,
                                        const std::string& strSecond);

private:
    static inline EXEC_MODE m_execMode = EXEC_MODE_ZEKA;
    static inline bool m_bDuringCsvCheck = false;
};
