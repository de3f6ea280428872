#include "batch/Journal.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <nlohmann/json.hpp>
#include <vector>

#include "JsonReport.h"
#include "ShiftJis.h"

namespace host {
namespace {

using Json = nlohmann::ordered_json;

constexpr const char* NEW_ENDING = ".new";
constexpr mode_t NEW_FILE_MODE = 0666;
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
    result.eStatus = static_cast<ExitStatus>(line.at("status").get<int>());
    result.eOutcome =
        OutcomeOfName(line.at("result").get<std::string>()).value_or(Outcome::NotChecked);
    if (line.at("document").is_object())
        result.nDocumentBytes = line.at("document").at("bytes");
    return result;
}

/// \return The empty text, or why not all could be written.
std::string WriteAll(int nFile, std::string_view strBytes)
{
    while (!strBytes.empty()) {
        const ssize_t nWritten = write(nFile, strBytes.data(), strBytes.size());
        if (nWritten < 0 && errno != EINTR)
            return std::strerror(errno);
        if (nWritten > 0)
            strBytes.remove_prefix(static_cast<std::size_t>(nWritten));
    }
    return {};
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

Journal::Journal(const std::string& strPath) : m_strPath(strPath) {}

Journal::~Journal()
{
    if (m_nFile >= 0)
        close(m_nFile);
}

bool Journal::Load()
{
    if (access(m_strPath.c_str(), F_OK) != 0)
        return errno == ENOENT;
    std::ifstream in(m_strPath, std::ios::binary);
    std::string strLine;
    std::uint64_t nPlace = 0;
    bool bOurs = in.is_open();
    while (std::getline(in, strLine)) {
        const bool bWhole = !in.eof();
        if (auto result = bWhole ? ReadJournalLine(strLine) : std::nullopt) {
            result->nPlace = nPlace;
            result->nLength = strLine.size() + 1;
            std::string strKey = result->entry.strKey;
            m_mapEarlier[std::move(strKey)] = std::move(*result);
        } else if (nPlace == 0) {
            // A first line that was torn still begins as one.
            bOurs = !bWhole && std::string_view("{\"file\":").starts_with(strLine.substr(0, 8));
        }
        nPlace += strLine.size() + 1;
    }
    return bOurs && !in.bad();
}

std::string Journal::Begin(const std::function<bool(const EarlierResult&)>& stays)
{
    const std::string strNew = m_strPath + NEW_ENDING;
    const int nNew =
        open(strNew.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, NEW_FILE_MODE);
    if (nNew < 0)
        return std::strerror(errno);
    std::string strProblem = CopyLines(nNew, stays);
    if (strProblem.empty() && std::rename(strNew.c_str(), m_strPath.c_str()) != 0)
        strProblem = std::strerror(errno);
    if (!strProblem.empty()) {
        close(nNew);
        unlink(strNew.c_str());
        return strProblem;
    }
    m_nFile = nNew;
    return {};
}

std::string Journal::CopyLines(int nTo, const std::function<bool(const EarlierResult&)>& stays)
{
    std::vector<const EarlierResult*> vecResult;
    for (const auto& [strKey, result] : m_mapEarlier)
        if (stays(result))
            vecResult.push_back(&result);
    std::ranges::sort(vecResult, {}, &EarlierResult::nPlace);

    std::ifstream in(m_strPath, std::ios::binary);
    std::string strLine;
    for (const EarlierResult* pResult : vecResult) {
        strLine.resize(pResult->nLength);
        in.seekg(static_cast<std::streamoff>(pResult->nPlace));
        if (!in.read(strLine.data(), static_cast<std::streamsize>(strLine.size())))
            return std::strerror(EIO);
        if (std::string strProblem = WriteAll(nTo, strLine); !strProblem.empty())
            return strProblem;
    }
    return {};
}

std::string Journal::Append(const std::string& strLine)
{
    const off_t nEnd = lseek(m_nFile, 0, SEEK_END);
    std::string strProblem = WriteAll(m_nFile, strLine);
    // A part of a line is written where the disk becomes full in it.
    if (!strProblem.empty() && nEnd >= 0 && ftruncate(m_nFile, nEnd) != 0)
        strProblem += ", and the line that was begun could not be taken back";
    return strProblem;
}

}  // namespace host
