#include "core/keys.h"

#include <gtest/gtest.h>

#include <QFile>

#include "core/sounds.h"
#include "tests/support/fixed_system.h"
#include "tests/support/printing.h"
#include "tests/support/test_installation.h"

namespace {

TEST(Keys, EnterIsSwallowedForATabAndLettersBecomeCapitals)
{
    int key = enterKey;
    EXPECT_TRUE(dnEnterToTab(key, false));
    EXPECT_EQ(key, 0);
    key = enterKey;
    EXPECT_FALSE(dnEnterToTab(key, true, true));
    EXPECT_EQ(key, enterKey);
    key = 'q';
    EXPECT_FALSE(dnEnterToTab(key, true));
    EXPECT_EQ(key, 'Q');
    key = 'q';
    dnEnterToTab(key, false);
    EXPECT_EQ(key, 'q');
    EXPECT_EQ(withTypedCapitals("az{`9ä"), "AZ{`9ä") << "only a to z";
}

TEST(Keys, OfNumbersAreDigitsAndWhatTheFieldAllows)
{
    EXPECT_EQ(withNumericKeysOnly("-1,2.5x", NumberKeys::Digits), "125");
    EXPECT_EQ(withNumericKeysOnly("-1,2.5x", NumberKeys::SignedDigits), "-125");
    EXPECT_EQ(withNumericKeysOnly("-1,2.5x", NumberKeys::Decimal), "12.5");
    EXPECT_EQ(withNumericKeysOnly("-1,2.5x", NumberKeys::SignedDecimal), "-12.5");
    EXPECT_TRUE(dnNumericKey(QChar(8), NumberKeys::Digits)) << "Backspace";
    EXPECT_TRUE(dnNumericKey(QChar(127), NumberKeys::Digits)) << "Delete";
}

TEST(Keys, HaveTheCharactersOfTheirCodes)
{
    struct Case
    {
        int code;
        const char* plain;
        const char* shifted;
    };
    const Case cases[] = {
        {65, "a", "A"},  {90, "z", "Z"},  {48, "0", ")"},  {57, "9", "("}, {96, "0", "0"},
        {105, "9", "9"}, {106, "*", "*"}, {107, "+", "+"}, {108, "", ""},  {109, "-", "-"},
        {110, ".", "."}, {111, "/", "/"}, {112, "", ""},   {32, " ", " "}, {33, "", ""},
        {189, "-", "_"}, {13, "", ""},    {8, "", ""},     {300, "", ""},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(dnKeyToChar(each.code, false), each.plain) << each.code;
        EXPECT_EQ(dnKeyToChar(each.code, true), each.shifted) << each.code;
    }
}

TEST(Keys, OfDatesStepThroughTheDays)
{
    const FixedSystem machine;  // March 7th, 2026
    EXPECT_EQ(dnDateKeyEdit('=', "12/31/2025"), "03/07/2026");
    EXPECT_EQ(dnDateKeyEdit('+', ""), "03/07/2026");
    EXPECT_EQ(dnDateKeyEdit('+', "  /  /  "), "03/07/2026");
    EXPECT_EQ(dnDateKeyEdit('+', "12/31/2025"), "01/01/2026");
    EXPECT_EQ(dnDateKeyEdit('-', "030126"), "02/28/2026");
    EXPECT_EQ(dnDateKeyEdit('-', "3"), std::nullopt) << "a date is being typed";
    EXPECT_EQ(dnDateKeyEdit('-', ""), std::nullopt);
    EXPECT_EQ(dnDateKeyEdit('5', "12/31/2025"), std::nullopt);
}

TEST(Sounds, AreSilentWithoutAFileAndReachThePlayerByTheirNativePath)
{
    const TestInstallation site;
    QStringList played;
    const SoundPlayer before = installSoundPlayer([&](const QString& path) { played += path; });
    dnPlaySound("ZORMedia\\ErrorSound.wav");
    EXPECT_TRUE(played.isEmpty());
    site.makeMarker(site.programFolder(), "ErrorSound.wav");
    dnPlaySound("ERRORSOUND.WAV");
    installSoundPlayer(before);
    EXPECT_EQ(played, QStringList{site.programFolder() + "/ErrorSound.wav"});
}

}  // namespace
