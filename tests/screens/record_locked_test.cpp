#include "screens/plain_notes.h"
#include "tests/support/printing.h"
#include "tests/support/window_helpers.h"

namespace {

const HeldLock lock{"PURCHASE ORDERS", "kim", "03/07/2026 9:05:42 AM"};

TEST(RecordLocked, TellsWhoHasTheRecord)
{
    const NoteScreen note = frmDNNETRLocked(lock, false);
    note->show();
    EXPECT_EQ(note->windowTitle(), "Record Locked");
    EXPECT_EQ(labelText(*note, "lblTABLENAME"), "PURCHASE ORDERS");
    EXPECT_EQ(labelText(*note, "lblUSERNAME"), "kim");
    EXPECT_EQ(labelText(*note, "lblRLTIMESTAMP"), "03/07/2026 9:05:42 AM");
    QStringList captions;
    for (const QLabel* label : note->findChildren<QLabel*>())
        captions += label->text();
    for (const char* caption :
         {"Table Name:", "User Name: ", "Date/Time:",
          "The Record you are attemping to access is locked by the above user."})
        EXPECT_TRUE(captions.contains(caption)) << caption;
    EXPECT_TRUE(control<QPushButton>(*note, "cmdREMOVE").isHidden());
    QTest::keyClick(note.get(), Qt::Key_Enter);
    EXPECT_FALSE(note->isVisible());
    EXPECT_EQ(note->result(), QDialog::Accepted);
}

TEST(RecordLocked, OffersToRemoveALockOfOnesOwn)
{
    const NoteScreen note = frmDNNETRLocked(lock, true);
    note->show();
    press(*note, "cmdREMOVE");
    EXPECT_FALSE(note->isVisible());
    EXPECT_EQ(note->result(), removesLock);
    note->show();
    QTest::keyClick(note.get(), Qt::Key_Escape);
    EXPECT_NE(note->result(), removesLock);
}

}  // namespace
