#include "screens/selectors/error_box.h"

#include "core/sounds.h"
#include "screens/message_forms.h"
#include "tests/support/test_installation.h"
#include "tests/support/window_helpers.h"

namespace {

class ErrorBoxTest : public testing::Test
{
protected:
    ErrorBoxTest() : box(new tqErrorBox), code(new QLineEdit), name(new QLineEdit)
    {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* part : std::initializer_list<QWidget*>{code, name, box})
            layout->addWidget(part);
        playerBefore = installSoundPlayer([this](const QString&) { ++sounds; });
    }
    ~ErrorBoxTest() override { installSoundPlayer(playerBefore); }
    static QColor background(const QWidget& widget)
    {
        return widget.palette().color(QPalette::Base);
    }

    TestInstallation site;
    QWidget window;
    tqErrorBox* box;
    QLineEdit* code;
    QLineEdit* name;
    SoundPlayer playerBefore;
    int sounds = 0;
};

TEST_F(ErrorBoxTest, CountsFieldsAndGoesWithTheLastError)
{
    const QColor normal = background(*code);
    dnShowError(*box, *name, 2, "Description is Empty.");
    dnShowError(*box, *code, 1, "G/L Code is Empty.");
    dnShowError(*box, *code, 1, "Duplicate G/L Code Detected.");
    EXPECT_EQ(box->ErrorCount(), 2) << "a second error of a field takes the first one's place";
    EXPECT_EQ(box->FirstFieldInError(), 1);
    EXPECT_EQ(labelText(window, "lblErrors"),
              "Duplicate G/L Code Detected.\nDescription is Empty.");
    EXPECT_FALSE(box->isHidden());
    EXPECT_NE(background(*code), normal);

    dnClearError(*box, *code, 1);
    EXPECT_EQ(background(*code), normal);
    EXPECT_FALSE(box->isHidden());
    dnClearError(*box, *name, 2);
    EXPECT_TRUE(box->isHidden());
    EXPECT_EQ(box->FirstFieldInError(), 0);

    dnShowError(*box, *name, 2, "x");
    dnResetErrors(*box, window);
    EXPECT_TRUE(box->isHidden());
    EXPECT_EQ(box->ErrorCount(), 0);
    EXPECT_EQ(background(*name), normal);
}

TEST_F(ErrorBoxTest, SoundsWhereThereIsASound)
{
    dnShowError(*box, *code, 1, "x");
    EXPECT_EQ(sounds, 0) << "a missing file is silent";
    QDir(site.programFolder()).mkpath("ZORMedia");
    site.makeMarker(site.programFolder() + "/ZORMedia", "ErrorSound.wav");
    dnShowError(*box, *code, 1, "x");
    EXPECT_EQ(sounds, 1);

    ErrorCollector collected;
    collected.AddError("x", 1);
    box->showErrors(collected);
    EXPECT_EQ(sounds, 1) << "an error that is known already";
    collected.AddError("y", 2);
    box->showErrors(collected);
    EXPECT_EQ(sounds, 2);
    EXPECT_EQ(labelText(window, "lblErrors"), "x\ny");
    collected.ClearField(1);
    box->showErrors(collected);
    EXPECT_EQ(sounds, 2) << "one error fewer";
    collected.ClearAll();
    box->showErrors(collected);
    EXPECT_TRUE(box->isHidden());
}

// Contrast of two colours as readers of screens know it: 4.5 and more is good for texts.
double contrast(const QColor& a, const QColor& b)
{
    const auto luminance = [](const QColor& colour) {
        const auto part = [](double c) {
            return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
               0.0722 * part(colour.blueF());
    };
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

TEST_F(ErrorBoxTest, MarksFieldsReadablyInLightAndDark)
{
    for (const QColor& ground : {QColor(240, 240, 240), QColor(45, 45, 48)}) {
        const bool isDark = ground.lightness() < 128;
        QPalette palette(ground);
        palette.setColor(QPalette::Base, isDark ? Qt::black : Qt::white);
        palette.setColor(QPalette::Text, isDark ? Qt::white : Qt::black);
        window.setPalette(palette);
        markError(*code, true);
        markError(*code, true);
        EXPECT_GT(contrast(background(*code), code->palette().color(QPalette::Text)), 4.5);
        EXPECT_EQ(background(*code).lightness() < 128, isDark) << "marking twice changes nothing";
        markError(*code, false);
        EXPECT_EQ(background(*code), isDark ? Qt::black : Qt::white);
    }
}

TEST(MessageForms, GiveTheButtonThatWasPressed)
{
    frmDNMsgBox one("Something happened.");
    EXPECT_EQ(labelText(one, "lblMessageText"), "Something happened.");
    EXPECT_EQ(control<QPushButton>(one, "cmdButton1").text(), "&OK");
    EXPECT_FALSE(one.findChild<QPushButton*>("cmdButton2"));
    one.show();
    const QRect only = control<QPushButton>(one, "cmdButton1").geometry();
    EXPECT_NEAR(only.center().x(), one.width() / 2, 3) << "alone it stands in the middle";
    press(one, "cmdButton1");
    EXPECT_EQ(one.result(), 1);

    frmDNMsgBox two("Which?", "&First", "&Second");
    two.show();
    press(two, "cmdButton2");
    EXPECT_EQ(two.result(), 2);
    two.show();
    QTest::keyClick(&two, Qt::Key_Escape);
    EXPECT_EQ(two.result(), 0);
}

TEST(MessageForms, RememberNotToWarnAgain)
{
    frmDNWarning warning("A job has no name.");
    EXPECT_EQ(labelText(warning, "lblWarning"), "A job has no name.");
    warning.show();
    control<QCheckBox>(warning, "ckbDoNotWarn").setChecked(true);
    EXPECT_FALSE(warning.doNotWarnAgain()) << "not before OK";
    press(warning, "cmdOK");
    EXPECT_TRUE(warning.doNotWarnAgain());
}

}  // namespace
