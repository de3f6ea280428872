#include "base/Outcome.h"

#include <algorithm>

namespace host {

OutcomeLook LookOf(Outcome eOutcome)
{
    switch (eOutcome) {
        case Outcome::Passed:
            return {"passed", {"passed", "合格"}, OutcomeTone::Good};
        case Outcome::Refused:
            return {"refused", {"refused", "不合格"}, OutcomeTone::Bad};
        case Outcome::NotChecked:
            break;
        case Outcome::Converted:
            return {"converted", {"converted", "変換済み"}, OutcomeTone::Good};
        case Outcome::Convertible:
            return {"convertible", {"would be converted", "変換できます"}, OutcomeTone::Good};
        case Outcome::NotConverted:
            return {"not_converted", {"not converted", "変換できず"}, OutcomeTone::Bad};
        case Outcome::NotWritten:
            return {"not_written", {"not written", "書き込めず"}, OutcomeTone::Doubt};
    }
    return {"not_checked", {"not checked", "チェックできず"}, OutcomeTone::Doubt};
}

const char* OutcomeName(Outcome eOutcome)
{
    return LookOf(eOutcome).szName;
}

std::optional<Outcome> OutcomeOfName(std::string_view strName)
{
    for (int nOutcome = 0; nOutcome <= static_cast<int>(Outcome::NotWritten); ++nOutcome)
        if (const auto eOutcome = static_cast<Outcome>(nOutcome); strName == OutcomeName(eOutcome))
            return eOutcome;
    return std::nullopt;
}

const char* OutcomeWord(Outcome eOutcome)
{
    return Say(LookOf(eOutcome).word);
}

std::string OutcomeVerdict(Outcome eOutcome)
{
    std::string strWord = OutcomeWord(eOutcome);
    if (LookOf(eOutcome).eTone != OutcomeTone::Good)
        std::ranges::transform(strWord, strWord.begin(), [](char cLetter) {
            return 'a' <= cLetter && cLetter <= 'z' ? static_cast<char>(cLetter - 'a' + 'A')
                                                    : cLetter;
        });
    return strWord;
}

const char* OutcomeStyle(Outcome eOutcome)
{
    switch (LookOf(eOutcome).eTone) {
        case OutcomeTone::Good:
            return "good";
        case OutcomeTone::Bad:
            return "bad";
        case OutcomeTone::Doubt:
            break;
    }
    return "doubt";
}

}  // namespace host
