#include "file/LineReader.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

#include "file/Descriptor.h"
#include "support/TempFolder.h"

namespace host {
namespace {

using Got = LineReader::Got;

class LineReaderTest : public testing::Test
{
protected:
    int Open(const std::string& strBytes)
    {
        m_file = Descriptor(open(m_folder.Write("lines", strBytes).c_str(), O_RDONLY | O_CLOEXEC));
        return m_file.Get();
    }

    TempFolder m_folder;
    Descriptor m_file;
    std::string m_strLine;
};

TEST_F(LineReaderTest, LinesComeWithTheirPlaces)
{
    LineReader reader(Open("one\n\nthree"), 10);
    EXPECT_EQ(reader.Next(m_strLine), Got::Line);
    EXPECT_EQ(m_strLine, "one");
    EXPECT_EQ(reader.Place(), 0U);
    EXPECT_EQ(reader.Next(m_strLine), Got::Line);
    EXPECT_EQ(m_strLine, "");
    EXPECT_EQ(reader.Place(), 4U);
    EXPECT_EQ(reader.Next(m_strLine), Got::Torn);
    EXPECT_EQ(m_strLine, "three");
    EXPECT_EQ(reader.Place(), 5U);
}

TEST_F(LineReaderTest, EmptyFileAndLastLineEndAreTheEnd)
{
    EXPECT_EQ(LineReader(Open(""), 10).Next(m_strLine), Got::End);
    LineReader reader(Open("a\n"), 10);
    EXPECT_EQ(reader.Next(m_strLine), Got::Line);
    EXPECT_EQ(reader.Next(m_strLine), Got::End);
}

TEST_F(LineReaderTest, LongestLineIsReadAndALongerOneIsNot)
{
    for (const std::size_t nLongest : {std::size_t{3}, std::size_t{65536}, std::size_t{200'000}}) {
        const std::string strLine(nLongest, 'x');
        LineReader reader(Open(strLine + "\nx" + strLine + "\n"), nLongest);
        EXPECT_EQ(reader.Next(m_strLine), Got::Line) << nLongest;
        EXPECT_EQ(m_strLine, strLine);
        EXPECT_EQ(reader.Next(m_strLine), Got::TooLong) << nLongest;
        EXPECT_LE(m_strLine.size(), nLongest);
        EXPECT_EQ(LineReader(Open("x" + strLine), nLongest).Next(m_strLine), Got::TooLong);
    }
}

TEST_F(LineReaderTest, WhatCannotBeReadHasFailed)
{
    const Descriptor folder(open(m_folder.Path().c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(LineReader(folder.Get(), 10).Next(m_strLine), Got::Failed);
}

TEST_F(LineReaderTest, ReadToEndTakesNoMoreThanItMay)
{
    std::string strBytes;
    EXPECT_EQ(ReadToEnd(Open("12345"), 5, strBytes), 0);
    EXPECT_EQ(strBytes, "12345");
    strBytes.clear();
    EXPECT_EQ(ReadToEnd(Open("123456"), 5, strBytes), EFBIG);
    const Descriptor zero(open("/dev/zero", O_RDONLY | O_CLOEXEC));
    strBytes.clear();
    EXPECT_EQ(ReadToEnd(zero.Get(), 1'000'000, strBytes), EFBIG);
}

}  // namespace
}  // namespace host
