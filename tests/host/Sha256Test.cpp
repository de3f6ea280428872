#include "Sha256.h"

#include <gtest/gtest.h>

namespace host {
namespace {

// The digests are those of the standard's examples.
TEST(Sha256Test, EmptyTextHasItsDigest)
{
    EXPECT_EQ(Sha256Base64(""), "47DEQpj8HBSa+/TImW+5JCeuQeRkm5NMpJWZG3hSuFU=");
}

TEST(Sha256Test, TextOfOneBlockHasItsDigest)
{
    EXPECT_EQ(Sha256Base64("abc"), "ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0=");
}

TEST(Sha256Test, TextWhoseLengthNeedsASecondBlockHasItsDigest)
{
    EXPECT_EQ(Sha256Base64("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "JI1qYdIGOLjlwCaTDD5gOaM85Flk/yFn9uzt1BnbBsE=");
}

TEST(Sha256Test, AMillionLettersHaveTheirDigest)
{
    EXPECT_EQ(Sha256Base64(std::string(1'000'000, 'a')),
              "zcduXJkU+5KBocfihNc+Z/GAmkiklyAOBG05zMcRLNA=");
}

}  // namespace
}  // namespace host
