#include "Advice.h"

namespace host {
namespace {

struct AdviceRow
{
    KZCEkaMessage_t eMessage;
    const char* szAdvice;
};

constexpr AdviceRow ADVICE[EKA_MSG_COUNT] = {
    {MSG_NONE,
     "This program has no text for the code. Use the library and the program of one release."},
    {HE70001E, "No value is given where one is needed. Fill it in."},
    {HE70002E,
     "No tax office has this name. Write the office's name as the table of tax offices has it."},
    {HE70003E, "Only full-width katakana may stand here. Replace every other character."},
    {HE70004E, "Only the half-width digits 0 to 9 may stand here. Replace every other character."},
    {HE70005E, "No value may stand here. Empty it."},
    {HE70006E, "A character is not allowed here. Replace it by an allowed one."},
    {HE70007E, "The value has too many characters. Shorten it."},
    {HE70008E, "The value has the wrong length. Give it the number of digits that is asked for."},
    {HE70009E, "The value is not one of the allowed ones. Give one that is."},
    {HE70010E,
     "The value is not a valid one; its check digit, for example, may be wrong. Correct it."},
    {HE70011E, "No tax office has this number. Write the office's 5-digit number."},
    {HE70012E, "There is no such date. Correct the era, year, month or day."},
    {HE70013E, "The file does not exist. Check its name and folder."},
    {HE70014E, "The file may not be read. Ask its owner for the right to read it."},
    {HE70015E, "The file name has the wrong ending. Rename it: .csv, .CSV, .txt or .TXT."},
    {HE70016E,
     "The document could not be made from these values. Correct the values that can't stand in "
     "XML."},
    {HE70017E, "The library refused without a reason. Report this as a fault of the program."},
    {HE70018E, "Something broke down that has nothing to do with the values of the file."},
    {HE70019E,
     "A record has the wrong number of columns. Add or remove commas until it fits its form."},
    {HE70020E,
     "The file has more than 5000 records, blank lines included. Split it into smaller files."},
    {HE70021E,
     "The type id in the first column is unknown or differs between records. Give all records one "
     "known id."},
    {HE70022E,
     "There are more errors than the library lists. Correct these and check the file again."},
    {HE70023E, "The document would be larger than 10 MB. Split the file into smaller ones."},
    {HE70024E, "The file holds no record. Write at least one."},
    {HE70025E, "The dates don't fit each other. Correct the one that is wrong."},
    {HE70026E, "The file may not be accessed. Ask its owner for the right to."},
    {HE70027E, "The folder of the output does not exist. Make it, or name another one."},
    {HE70028E, "The file could not be written. Check its folder's permissions and the free space."},
    {HE70029E, "The file has more records than its form allows. Split it into smaller files."},
    {HE70030E, "One of these columns has to be 1. Set the one that applies."},
    {HE70031E, "The value stands more than once. Keep it in one place."},
    {HE70032E, "Only half-width letters may stand here. Replace every other character."},
    {HE70033E, "The form needs a second record. Add it."},
    {HE70034E,
     "Only full-width katakana, letters and digits may stand here. Replace every other character."},
    {HE70035E, "Only half-width letters and digits may stand here. Replace every other character."},
    {HE99999E, "The value is not allowed here. Correct it."},
};

static_assert(
    [] {
        for (int nRow = 0; nRow < EKA_MSG_COUNT; ++nRow)
            if (ADVICE[nRow].eMessage != nRow)
                return false;
        return true;
    }(),
    "each row stands at its message's index");

}  // namespace

const char* AdviceFor(KZCEkaMessage_t eMessage)
{
    return ADVICE[eMessage].szAdvice;
}

}  // namespace host
