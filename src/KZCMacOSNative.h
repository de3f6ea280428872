// The seam between the library and the platform: text, files, calendar.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Static services. A character is one UTF-16 unit. Where bUtf8 is a parameter it names the
/// encoding of the text: true for UTF-8, false for Shift_JIS. Paths are UTF-8. Nothing here records
/// an error or writes to the log; failure is told by the result.
class KZCMacOSNative
{
public:
    // --- text ---

    /// The whole file, decoded as Shift_JIS and encoded again as bUtf8 selects, up to the first
    /// NUL. Empty if the file can't be read, is empty, is no regular file, or holds one invalid
    /// sequence.
    static std::string readSJISFile(const char* szPath, bool bUtf8);

    /// What takes a text or a file piece by piece. \return false to have no more of it.
    using PieceUse = std::function<bool(std::string_view strPiece)>;

    /// The same text piece by piece, so that a large file needs no memory of its size; a piece may
    /// end inside a character. A large file is read twice: use gets nothing before it is known that
    /// all can be read and decoded.
    /// \return false if readSJISFile gives the empty text, or a file that changed between the two
    /// readings can't be read to its end.
    static bool readSJISPieces(const char* szPath, bool bUtf8, const PieceUse& use);

    /// Writes the text as a Shift_JIS file, replacing what an existing file holds.
    /// \return false if the text can't be decoded, a character has no place in Shift_JIS (the file
    /// is not touched then), or the write fails (a file made by this call doesn't stay behind).
    static bool writeSJISFile(const char* szPath, const char* szText, bool bUtf8);

    /// Empty for null and for invalid Shift_JIS.
    static std::string convertUTF8fromShiftJIS(const char* szText);
    static std::u16string convertUTF16fromShiftJIS(const char* szText);

    /// Bytes that one character takes in the text's own encoding.
    /// \param nIndex  Character from 0.
    /// \return 0 if nIndex is at or behind the end or the text can't be decoded.
    static unsigned long getStringLength(const char* szText, unsigned long nIndex, bool bUtf8);

    /// getStringLength of every character in one pass. Empty if the text can't be decoded.
    static std::vector<unsigned char> getStringLengths(const char* szText, bool bUtf8);

    /// Characters of a UTF-8 text; 0 if it can't be decoded.
    static unsigned long getCharacterLength(const char* szText);

    /// nLength characters from nStart. The whole text if nStart is at or behind its end.
    static std::string subStringWithCharacterLength(const std::string& strText,
                                                    unsigned long nStart,
                                                    unsigned long nLength);

    /// The text without white space (U+0009 to U+000D, U+0085, general category Z) at both ends.
    /// Empty if it can't be decoded.
    static std::string stringByTrimming(const std::string& strText, bool bUtf8);

    /// Digits with an optional leading sign and at most one decimal point behind the first
    /// character and not behind the sign.
    static bool isIntegerString(const char* szText, bool bUtf8);

    // --- files ---

    /// The path exists and is no directory.
    static bool pathFileExists(const char* szPath);
    /// The current user can read it.
    static bool pathFileIsRead(const char* szPath);
    /// The folder that holds the path exists. The path itself isn't looked at.
    static bool pathDirectoryExists(const char* szPath);
    /// Bytes, or -1 if there is nothing at the path.
    static long getFileSize(const char* szPath);
    /// The two joined by exactly one '/'. Empty if szBase is null; null szComponent counts as
    /// empty.
    static std::string appendFilePath(const char* szBase, const char* szComponent);
    /// Full paths of the folder's files, sorted by name, without folders and ".DS_Store".
    /// \return false if the folder can't be listed.
    static bool getFilesUnderFolder(const char* szFolder, std::vector<std::string>& vecFiles);
    /// HOME, which set-user-id programs ignore, else what the user database says, else the empty
    /// text. Valid until the next call.
    static const char* homeDirectory();
    /// The folder KZEkaMok.bundle, or the empty text.
    static std::string getBundlePath();
    /// A file of that folder by its name, or the empty text if it doesn't exist.
    static std::string getBundlePathName(const char* szName);
    /// The bytes of a regular file.
    /// \return false if it can't be read to its end.
    static bool readFile(const char* szPath, std::string& strBytes);
    /// The same piece by piece. \return false if it can't be read up to where use ends it.
    static bool readFile(const char* szPath, const PieceUse& use);
    enum class ReadResult
    {
        READ,
        NOT_OPENED,
        NOT_READ,  ///< a folder, a disk error, or a pipe that gives too much or takes too long
    };
    /// The bytes of a regular file, or of a pipe or device up to its end: 64 MiB at most, and what
    /// comes within five seconds.
    static ReadResult readStream(const char* szPath, std::string& strBytes);
    enum class WriteMode
    {
        PLAIN,
        FLUSHED,  ///< the bytes are on the disk on return
    };
    enum class WriteResult
    {
        WRITTEN,
        NOT_OPENED,   ///< nothing was touched
        NOT_WRITTEN,  ///< a file that the call made is gone again, one that was there is left empty
                      ///< rather than half written
    };
    /// Makes the file or replaces what it holds.
    static WriteResult writeFile(const char* szPath, std::string_view strBytes, WriteMode eMode);
    /// Appends the bytes to a log and has them on the disk on return. Only a regular file of the
    /// current user under this one name will do, and no link to one; it becomes readable by its
    /// owner alone.
    /// \return true if there is such a file now.
    static bool appendToLog(const char* szPath, std::string_view strBytes);

    // --- calendar ---

    /// The present local time by two Unicode date patterns (see DatePattern.h), joined by a blank
    /// if both are given.
    static std::string dateTimeNow(const char* szDatePattern, const char* szTimePattern);
    /// The text is a real date.
    static bool dateTimeChange(const char* szDate);
    /// The same; fills the Gregorian year, month and day, or leaves them alone.
    static bool dateTimeChange(const char* szDate, long& lYear, long& lMonth, long& lDay);
    /// 0 the same instant, 1 first is later, 2 first is earlier, -1 first is no date, -2 second.
    static long dateTimeComp(const char* szFirst, const char* szSecond);
    /// Low part 2 before, 0 at, 1 after, 15 without the lower limit, plus the same for the upper
    /// limit as 32, 0, 16, 240. -2 to -4 for an unreadable date, lower or upper limit; -5 without
    /// any limit. With bRequired both limits must be dates.
    static long rangeDate(const char* szDate,
                          const char* szLower,
                          const char* szUpper,
                          bool bRequired);
};
