#include "util/Parsing.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace kesto;

namespace
{

TEST(Parsing, TakesThePartAfterABeginString)
{
    EXPECT_EQ(stringBySubtractingWithBeginString(u"x[1]y[2]"_qs, u"["_qs), u"1]y"_qs);
    EXPECT_EQ(stringBySubtractingWithBeginString(u"name: Суп"_qs, u"name: "_qs), u"Суп"_qs);
    EXPECT_EQ(stringBySubtractingWithBeginString(u"aXX"_qs, u"X"_qs), u""_qs);
    EXPECT_EQ(stringBySubtractingWithBeginString(u"aaa"_qs, u"aa"_qs), u"a"_qs); // occurrences don't overlap
    EXPECT_EQ(stringBySubtractingWithBeginString(u"end["_qs, u"["_qs), u""_qs);
    for (const QString &text : {u"abc"_qs, u""_qs, QString()}) {
        EXPECT_THROW((void)stringBySubtractingWithBeginString(text, u"["_qs), std::out_of_range);
        EXPECT_THROW((void)stringBySubtractingWithBeginString(text, u"["_qs, u"]"_qs), std::out_of_range);
        EXPECT_THROW((void)stringBySubtractingWithBeginString(text, u""_qs), std::out_of_range);
    }
}

TEST(Parsing, TakesThePartBeforeAnEndString)
{
    EXPECT_EQ(stringBySubtractingWithEndString(u"a;b;c"_qs, u";"_qs), u"a"_qs);
    EXPECT_EQ(stringBySubtractingWithEndString(u";b"_qs, u";"_qs), u""_qs);
    EXPECT_EQ(stringBySubtractingWithEndString(u"abc"_qs, u";"_qs), u"abc"_qs);
    EXPECT_EQ(stringBySubtractingWithEndString(u"abc"_qs, u""_qs), u"abc"_qs);
}

TEST(Parsing, TakesThePartBetween)
{
    EXPECT_EQ(stringBySubtractingWithBeginString(u"x[1]y[2]"_qs, u"["_qs, u"]"_qs), u"1"_qs);
    EXPECT_EQ(stringBySubtractingWithBeginString(u"]x[1]"_qs, u"["_qs, u"]"_qs), u"1"_qs);      // only after the begin
    EXPECT_EQ(stringBySubtractingWithBeginString(u"x[1 y[2]"_qs, u"["_qs, u"]"_qs), u"1 y"_qs); // not past the second
    EXPECT_EQ(stringBySubtractingWithBeginString(u"x[1 y"_qs, u"["_qs, u"]"_qs), u"1 y"_qs);
    EXPECT_EQ(stringBySubtractingWithBeginString(u"\"a\"b\""_qs, u"\""_qs, u"\""_qs), u"a"_qs);
}

TEST(Parsing, RemovesStrings)
{
    EXPECT_EQ(stringByRemovingString(u"a-b-c--"_qs, u"-"_qs), u"abc"_qs);
    EXPECT_EQ(stringByRemovingString(u"aab"_qs, u"ab"_qs), u"a"_qs);
    EXPECT_EQ(stringByRemovingString(u"abc"_qs, u""_qs), u"abc"_qs);
    EXPECT_EQ(stringByRemovingStringsFromArray(u"a-b_c"_qs, {u"-"_qs, u"_"_qs}), u"a-bc"_qs);
    EXPECT_EQ(stringByRemovingStringsFromArray(u"a-b_c"_qs, {u"_"_qs, u"?"_qs}), u"a-b_c"_qs);
    EXPECT_EQ(stringByRemovingStringsFromArray(u"a-b_c"_qs, {}), u"a-b_c"_qs);
}

TEST(Parsing, RemovesLeadingSpacesOnly)
{
    EXPECT_EQ(stringByRemovingWhiteSpaceInBegining(u"   a b "_qs), u"a b "_qs);
    EXPECT_EQ(stringByRemovingWhiteSpaceInBegining(u"a"_qs), u"a"_qs);
    EXPECT_EQ(stringByRemovingWhiteSpaceInBegining(u" \t a"_qs), u"\t a"_qs);
    EXPECT_EQ(stringByRemovingWhiteSpaceInBegining(u"\n a"_qs), u"\n a"_qs);
    EXPECT_EQ(stringByRemovingWhiteSpaceInBegining(u"\u00a0a"_qs), u"\u00a0a"_qs);
    EXPECT_EQ(stringByRemovingWhiteSpaceInBegining(u""_qs), u""_qs);
    EXPECT_THROW((void)stringByRemovingWhiteSpaceInBegining(u" "_qs), std::out_of_range);
    EXPECT_THROW((void)stringByRemovingWhiteSpaceInBegining(u"    "_qs), std::out_of_range);
}

} // namespace
