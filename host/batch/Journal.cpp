#include "batch/Journal.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <utility>
#include <vector>

#include "base/Language.h"
#include "file/LineReader.h"
#include "file/WholeFile.h"
#include "report/JsonReport.h"
#include "text/ShiftJis.h"

namespace host {
namespace {

using Json = nlohmann::ordered_json;

constexpr int DEPTH_MOST = 32;  // a line of a batch has 5
constexpr uid_t ROOT = 0;
constexpr std::string_view DOCUMENT_ENDING = ".mok";
constexpr double SECOND_FRACTION = 1e6;
constexpr std::array SKIPPED_MEMBERS = {"errors", "notices", "counts"};

std::string Hex(const std::string& strBytes)
{
    constexpr const char* DIGITS = "0123456789abcdef";
    std::string strHex;
    for (const char c : strBytes) {
        const auto n = static_cast<unsigned char>(c);
        strHex += DIGITS[n >> 4U];
        strHex += DIGITS[n & 0xfU];
    }
    return strHex;
}

std::string FromHex(const std::string& strHex)
{
    std::string strBytes;
    for (std::size_t n = 0; n + 1 < strHex.size(); n += 2)
        strBytes += static_cast<char>(std::stoi(strHex.substr(n, 2), nullptr, 16));
    return strBytes;
}

/// Null for nothing, and for the empty text.
template <class Value>
Json ValueOrNull(const Value& value)
{
    return value == Value() ? Json() : Json(value);
}

std::string TextOf(const Json& value)
{
    return value.is_string() ? value.get<std::string>() : std::string();
}

EarlierResult ReadResult(const Json& line)
{
    const Json& batch = line.at("batch");
    EarlierResult result;
    // A name that isn't UTF-8 has no place in JSON but as hexadecimal digits.
    result.entry.strKey = batch.contains("pathBytes") ? FromHex(batch.at("pathBytes"))
                                                      : batch.at("path").get<std::string>();
    if (batch.at("bytes").is_number())
        result.entry.state = {batch.at("bytes").get<std::uintmax_t>(),
                              batch.at("modified").get<std::string>()};
    result.entry.strOptions = batch.at("options");
    result.entry.strDocument = TextOf(batch.at("document"));
    result.entry.dSeconds = batch.at("seconds");
    const std::int64_t nStatus = line.at("status");
    const auto outcome = OutcomeOfName(line.at("result").get<std::string>());
    if (nStatus < static_cast<std::int64_t>(ExitStatus::Passed) ||
        nStatus > static_cast<std::int64_t>(ExitStatus::NotWritten) || !outcome)
        throw std::range_error("no result of a batch");
    result.eStatus = static_cast<ExitStatus>(nStatus);
    result.eOutcome = *outcome;
    if (line.at("document").is_object())
        result.nDocumentBytes = line.at("document").at("bytes");
    return result;
}

// Ends of sentences.
constexpr Text NOT_OURS = {"it wasn't written by a batch", "バッチが作成したものではありません"};
constexpr Text NO_FILE = {"it is no regular file", "通常のファイルではありません"};
constexpr Text STRANGERS = {"it belongs to another user", "ほかのユーザーのものです"};
constexpr Text LONG_LINE = {"a line in it is longer than 16 MiB", "16 MiBを超える行があります"};
constexpr Text TOO_LARGE = {"it is larger than 4 GiB", "4 GiBを超えています"};
constexpr Text UNREADABLE = {"it can't be read: {1}", "読み取れません（{1}）"};

/// Whether a batch could have given a document this name. A file without one has the empty text.
bool CanBeDocument(const std::string& strName)
{
    return strName.empty() || (LeadsBelow(strName) && strName.ends_with(DOCUMENT_ENDING));
}

}  // namespace

std::string JournalLine(const std::string& strReport, const JournalEntry& entry)
{
    Json batch = {{"path", entry.strKey}};
    if (!Utf8::Decode(entry.strKey))
        batch["pathBytes"] = Hex(entry.strKey);
    batch["bytes"] = entry.state ? Json(entry.state->nBytes) : Json();
    batch["modified"] = entry.state ? Json(entry.state->strModified) : Json();
    batch["options"] = entry.strOptions;
    batch["document"] = ValueOrNull(entry.strDocument);
    batch["seconds"] = std::round(entry.dSeconds * SECOND_FRACTION) / SECOND_FRACTION;
    batch["finished"] = TimeStamp();
    return strReport.substr(0, strReport.size() - 1) + ",\"batch\":" + JsonText(batch) + "}\n";
}

std::optional<EarlierResult> ReadJournalLine(std::string_view strLine)
{
    if (NestsTooDeep(strLine))
        return std::nullopt;
    // Most of a line is errors, which nobody asks for here.
    const auto keep = [](int nDepth, Json::parse_event_t eEvent, Json& value) {
        return nDepth != 1 || eEvent != Json::parse_event_t::key ||
               std::ranges::none_of(SKIPPED_MEMBERS,
                                    [&value](const char* szName) { return value == szName; });
    };
    const Json line = Json::parse(strLine, keep, /*allow_exceptions=*/false);
    if (!line.is_object())
        return std::nullopt;
    try {
        return ReadResult(line);
    } catch (const std::exception&) {  // a member is missing or of another type
        return std::nullopt;
    }
}

bool NestsTooDeep(std::string_view strLine)
{
    int nDepth = 0;
    bool bInText = false;
    for (std::size_t n = 0; n < strLine.size(); ++n) {
        const char c = strLine[n];
        if (c == '"')
            bInText = !bInText;
        else if (bInText && c == '\\')
            ++n;
        else if (!bInText && (c == '[' || c == '{') && ++nDepth > DEPTH_MOST)
            return true;
        else if (!bInText && (c == ']' || c == '}'))
            --nDepth;
    }
    return false;
}

Journal::Journal(FilePlace place, mode_t mode) : m_place(std::move(place)), m_mode(mode) {}

/// \return As Load; nothing is opened if there is no file.
std::string Journal::Open()
{
    const int nError = OpenRegularFile(m_place.folder.Get(), m_place.strName.c_str(), m_file);
    if (nError == ENOENT)
        return {};
    if (nError == ELOOP || nError == EINVAL || nError == EISDIR || nError == ENXIO)
        return Say(NO_FILE);
    struct stat info = {};
    if (nError != 0 || fstat(m_file.Get(), &info) != 0)
        return Say(UNREADABLE, {std::strerror(nError != 0 ? nError : errno)});
    if (info.st_uid != geteuid() && info.st_uid != ROOT)
        return Say(STRANGERS);
    return static_cast<std::uint64_t>(info.st_size) > BYTES_MOST ? Say(TOO_LARGE) : std::string();
}

std::string Journal::Load()
{
    if (std::string strProblem = Open(); !strProblem.empty() || !m_file.IsOpen())
        return strProblem;
    LineReader reader(m_file.Get(), LINE_LONGEST);
    std::string strLine;
    LineReader::Got eGot = LineReader::Got::End;
    while ((eGot = reader.Next(strLine)) == LineReader::Got::Line) {
        if (reader.Place() > BYTES_MOST)
            return Say(TOO_LARGE);
        auto result = ReadJournalLine(strLine);
        if (!result && reader.Place() == 0)
            return Say(NOT_OURS);
        if (!result) {
            ++m_nBad;
        } else if (!CanBeDocument(result->entry.strDocument)) {
            ++m_nForeign;
        } else {
            result->nPlace = reader.Place();
            result->nLength = strLine.size() + 1;
            std::string strKey = result->entry.strKey;
            m_mapEarlier[std::move(strKey)] = std::move(*result);
        }
    }
    if (eGot == LineReader::Got::TooLong)
        return Say(LONG_LINE);
    if (eGot == LineReader::Got::Failed)
        return Say(UNREADABLE, {std::strerror(EIO)});
    // A first line that was torn still begins as one.
    const bool bOurs = eGot != LineReader::Got::Torn || reader.Place() > 0 ||
                       std::string_view("{\"file\":").starts_with(strLine.substr(0, 8));
    return bOurs ? std::string() : Say(NOT_OURS);
}

std::string Journal::Begin(const std::function<bool(const EarlierResult&)>& stays)
{
    PendingFile file(m_place);
    if (const int nError = file.Open(); nError != 0)
        return std::strerror(nError);
    if (std::string strProblem = CopyLines(file.Get(), stays); !strProblem.empty())
        return strProblem;
    if (std::string strProblem = file.Keep(m_mode); !strProblem.empty())
        return strProblem;
    m_file = file.Take();
    return fcntl(m_file.Get(), F_SETFL, O_APPEND) == 0 ? std::string() : std::strerror(errno);
}

std::string Journal::CopyLines(int nTo,
                               const std::function<bool(const EarlierResult&)>& stays) const
{
    std::vector<const EarlierResult*> vecResult;
    for (const auto& [strKey, result] : m_mapEarlier)
        if (stays(result))
            vecResult.push_back(&result);
    std::ranges::sort(vecResult, {}, &EarlierResult::nPlace);

    std::string strLine;
    for (const EarlierResult* pResult : vecResult) {
        strLine.resize(pResult->nLength);
        if (pread(m_file.Get(), strLine.data(), strLine.size(),
                  static_cast<off_t>(pResult->nPlace)) != static_cast<ssize_t>(strLine.size()))
            return std::strerror(EIO);
        if (std::string strProblem = WriteAll(nTo, strLine); !strProblem.empty())
            return strProblem;
    }
    return {};
}

std::string Journal::Append(const std::string& strLine)
{
    const off_t nEnd = lseek(m_file.Get(), 0, SEEK_END);
    // What the next run would not read isn't written.
    if (strLine.size() > LINE_LONGEST ||
        static_cast<std::uint64_t>(std::max<off_t>(nEnd, 0)) + strLine.size() > BYTES_MOST)
        return std::strerror(EFBIG);
    std::string strProblem = WriteAll(m_file.Get(), strLine);
    // A part of a line is written where the disk becomes full in it.
    if (!strProblem.empty() && nEnd >= 0 && ftruncate(m_file.Get(), nEnd) != 0)
        strProblem += ", and the line that was begun could not be taken back";
    return strProblem;
}

std::string Journal::Read(const std::function<void(const std::string&)>& take) const
{
    if (!m_file.IsOpen())
        return std::strerror(ENOENT);
    LineReader reader(m_file.Get(), LINE_LONGEST);
    std::string strLine;
    LineReader::Got eGot = LineReader::Got::End;
    while ((eGot = reader.Next(strLine)) == LineReader::Got::Line)
        take(strLine);
    return eGot == LineReader::Got::Failed ? std::strerror(EIO) : std::string();
}

bool Journal::IsInPlace() const
{
    struct stat named = {};
    struct stat written = {};
    return fstatat(m_place.folder.Get(), m_place.strName.c_str(), &named, AT_SYMLINK_NOFOLLOW) ==
               0 &&
           fstat(m_file.Get(), &written) == 0 && named.st_dev == written.st_dev &&
           named.st_ino == written.st_ino;
}

}  // namespace host
