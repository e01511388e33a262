#include "screens/field_keys.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "tests/support/fixed_system.h"
#include "tests/support/printing.h"

namespace {

class FieldKeysTest : public ::testing::Test
{
protected:
    FieldKeysTest()
    {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* field : {static_cast<QWidget*>(first), static_cast<QWidget*>(second),
                               static_cast<QWidget*>(combo), static_cast<QWidget*>(notes),
                               static_cast<QWidget*>(button)})
            layout->addWidget(field);
        combo->setEditable(true);
        button->setDefault(true);
        QObject::connect(button, &QPushButton::clicked, [this] { ++clicks; });
        window.show();
        QApplication::setActiveWindow(&window);
        first->setFocus();
    }

    QDialog window;
    QLineEdit* first = new QLineEdit;
    QLineEdit* second = new QLineEdit;
    QComboBox* combo = new QComboBox;
    QPlainTextEdit* notes = new QPlainTextEdit;
    QPushButton* button = new QPushButton;
    int clicks = 0;
};

TEST_F(FieldKeysTest, EnterMovesThroughAllKindsOfFieldsAndPressesNoButton)
{
    for (QWidget* field : {static_cast<QWidget*>(first), static_cast<QWidget*>(second),
                           static_cast<QWidget*>(combo), static_cast<QWidget*>(notes)})
        setFieldKeys(*field);
    QTest::keyClick(first, Qt::Key_Return);
    EXPECT_TRUE(second->hasFocus());
    QTest::keyClick(second, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(combo->hasFocus());
    QTest::keyClick(combo, Qt::Key_Return);
    EXPECT_TRUE(notes->hasFocus());
    QTest::keyClick(notes, Qt::Key_Return);
    EXPECT_TRUE(button->hasFocus());
    EXPECT_EQ(notes->toPlainText(), "");
    EXPECT_EQ(clicks, 0);

    setFieldKeys(*notes, {.keepEnter = true});
    notes->setFocus();
    QTest::keyClick(notes, Qt::Key_Return);
    EXPECT_EQ(notes->toPlainText(), "\n");
}

TEST_F(FieldKeysTest, LettersBecomeCapitalsHoweverTheyCome)
{
    first->setText("kept as stored ");
    for (QWidget* field :
         {static_cast<QWidget*>(first), static_cast<QWidget*>(combo), static_cast<QWidget*>(notes)})
        setFieldKeys(*field, {.upperCase = true});
    QTest::keyClicks(first, "pipe 2\"");
    EXPECT_EQ(first->text(), "kept as stored PIPE 2\"");
    QGuiApplication::clipboard()->setText("elbow");
    QTest::keyClick(first, Qt::Key_V, Qt::ControlModifier);
    QInputMethodEvent input;
    input.setCommitString("s");
    QCoreApplication::sendEvent(first, &input);
    EXPECT_EQ(first->text(), "kept as stored PIPE 2\"ELBOWS");
    QTest::keyClicks(combo, "valve");
    EXPECT_EQ(combo->currentText(), "VALVE");
    QTest::keyClicks(notes, "tee");
    EXPECT_EQ(notes->toPlainText(), "TEE");
    first->setReadOnly(true);
    QTest::keyClicks(first, "x");
    EXPECT_EQ(first->text(), "kept as stored PIPE 2\"ELBOWS");
}

TEST_F(FieldKeysTest, OfANumberRefuseOtherCharactersButNotEditing)
{
    setFieldKeys(*first, {.numbers = NumberKeys::SignedDecimal});
    QTest::keyClicks(first, "-1a2.x5");
    QTest::keyClick(first, Qt::Key_Backspace);
    EXPECT_EQ(first->text(), "-12.");
    QGuiApplication::clipboard()->setText("7,500");
    QTest::keyClick(first, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(first->text(), "-12.7500");
}

TEST_F(FieldKeysTest, OfADateChangeItWithoutBeingTyped)
{
    const FixedSystem machine;
    setFieldKeys(*first, {.dateKeys = true});
    QTest::keyClicks(first, "=");
    EXPECT_EQ(first->text(), "03/07/2026");
    QTest::keyClicks(first, "+-");
    QTest::keyClicks(first, "-");
    EXPECT_EQ(first->text(), "03/06/2026");
    first->clear();
    QTest::keyClicks(first, "4-1+-26");
    EXPECT_EQ(first->text(), "4-1-26");
}

TEST_F(FieldKeysTest, ComingIntoAFieldSelectsItsText)
{
    first->setText("one");
    second->setText("two words");
    setFieldKeys(*first);
    setFieldKeys(*second);
    QTest::keyClick(first, Qt::Key_Return);
    EXPECT_EQ(second->selectedText(), "two words");
    QTest::mouseClick(first, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(first->selectedText(), "one");
    QTest::mouseClick(first, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(first->selectedText(), "") << "a second click sets the cursor";
}

}  // namespace
