#include "calendars/text.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace tarnwick {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Text, CutsAndCounts) {
  EXPECT_EQ(Trim(" \t 2003 CE\r\n"), "2003 CE");
  EXPECT_EQ(Trim(" \n "), "");
  EXPECT_EQ(RemoveChars("1, 234, 567", ", "), "1234567");
  EXPECT_EQ(StripLeading("000120", "0"), "120");
  EXPECT_EQ(StripLeading("abababc", "ab"), "c");
  EXPECT_EQ(StripLeading("000", "0"), "");
  EXPECT_EQ(StripLeading("abc", ""), "abc");
  EXPECT_EQ(CountOf("1-2--3", "-"), 3u);
  EXPECT_EQ(CountOf("aaaa", "aa"), 2u);
  EXPECT_EQ(CountOf("abc", ""), 0u);
}

TEST(Text, TellsSignedNumbers) {
  for (const char* number : {"1", " 12.5 ", "-3", "+3", "1,000.25", ".5", "-1-", "-", "-1+1-"}) {
    EXPECT_EQ(IsSignedNumber(number, true), std::string_view(number) != "-1+1-") << number;
  }
  for (const char* text : {"", "  ", "1-2", "+-3", "-+3", "1.2.3", "1e5", "1 2", ",-5", "12a"}) {
    EXPECT_FALSE(IsSignedNumber(text, true)) << text;
  }
  EXPECT_FALSE(IsSignedNumber("1,000", false));
}

TEST(Text, ChangesCaseOfAccentedLettersAndNothingElse) {
  const std::string capitals = "ŠŸÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝ";
  const std::string small = "šÿàáâãäåçèéêëìíîïðñòóôõöøùúûüý";
  EXPECT_EQ(AccentCase(small, LetterCase::kUpper), capitals);
  EXPECT_EQ(AccentCase(capitals, LetterCase::kLower), small);
  EXPECT_EQ(AccentCase("März abc ×÷€", LetterCase::kUpper), "MÄrz abc ×÷€");
  EXPECT_EQ(UpperCase("2003-12-31 ce märz"), "2003-12-31 CE MÄRZ");
  const std::string_view broken("a\xC3\xFF\xC3\xA0\x80\0b\xC3", 9);
  EXPECT_EQ(UpperCase(broken), std::string("A\xC3\xFF\xC3\x80\x80\0B\xC3", 9));
}

TEST(Text, ReadsTheLeadingNumber) {
  const std::string digits(400, '9');
  const std::string zeros(400, '0');
  const std::pair<std::string, double> numbers[] = {{"2451545.25AJD", 2451545.25},
                                                    {"-1-", -1},
                                                    {"+.5", 0.5},
                                                    {"5.", 5},
                                                    {"1.5.5", 1.5},
                                                    {"1e5", 1},
                                                    {"1,5", 1},
                                                    {digits, kInfinity},
                                                    {"-" + digits + ".5", -kInfinity},
                                                    {zeros + "7.25", 7.25},
                                                    {"0." + zeros + "1", 0}};
  for (const auto& [text, value] : numbers) EXPECT_EQ(LeadingNumber(text), value) << text;
  for (const char* text : {"", "-", ".", "-.", "+-5", " 5", "inf", "nan", "0x10"}) {
    EXPECT_EQ(LeadingNumber(text), 0) << text;
  }
}

TEST(Text, FormatsWithAFixedCountOfDecimals) {
  const std::tuple<double, std::int32_t, std::string> cases[] = {
      {2451545, 4, "2,451,545.0000"},
      {-1234.56785, 4, "-1,234.5679"},
      {999.99996, 4, "1,000.0000"},
      {-0.00004, 4, "0.0000"},
      {0.04999, 1, "0.0"},
      {-2.5, 0, "-3"},
      {12.7, -3, "13"},
      {kInfinity, 2, "inf"},
      {-kInfinity, 2, "-inf"},
      {std::nan(""), 2, "nan"},
      {123456789012345678.0, 1, "123,456,789,012,346,000.0"},
      // As doubles these lie below the half; 15 digits bring them back to it.
      {0.15, 1, "0.2"},
      {1.005, 2, "1.01"},
      {0.49999999999999994, 0, "1"},
      {0.499999999999999, 0, "0"}};
  for (const auto& [value, decimals, text] : cases)
    EXPECT_EQ(FormatFixed(value, decimals, true), text);
  EXPECT_EQ(FormatFixed(2451545.5, 1, false), "2451545.5");
  EXPECT_EQ(FormatFixed(std::numeric_limits<double>::max(), 4, false).size(), 309u + 5u);
}

TEST(Text, WritesNumbers) {
  EXPECT_EQ(PadLeft("7", 3, '0'), "007");
  EXPECT_EQ(PadLeft("1234", 3, '0'), "1234");
  EXPECT_EQ(PadLeft("7", -1, '0'), "7");
  EXPECT_EQ(TwoDigits(7), "07");
  EXPECT_EQ(TwoDigits(123), "123");
  EXPECT_EQ(SignedNumberText(0), " 0");
  EXPECT_EQ(SignedNumberText(-3), "-3");
}

TEST(Text, WritesEnglishOrdinals) {
  const std::pair<std::int32_t, const char*> ordinals[] = {
      {0, "0th"},   {1, "1st"},   {2, "2nd"},   {3, "3rd"},     {4, "4th"},     {11, "11th"},
      {12, "12th"}, {13, "13th"}, {21, "21st"}, {101, "101st"}, {111, "111th"}, {112, "112th"},
  };
  for (const auto& [number, text] : ordinals) EXPECT_EQ(OrdinalText(number), text);
}

}  // namespace
}  // namespace tarnwick
