// document_changer SITE USER insert|clone: changes documents until it is killed, and writes a line
// for each time that it is done. "insert" adds blank lines above line 101 of requisition 10,
// "clone" makes orders out of order 70. Another program beside that of the test.
#include <QCoreApplication>

#include "purchasing/document_lines.h"
#include "purchasing/document_marks.h"
#include "tests/support/complaints.h"

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const Complaints complaints;
    const QStringList arguments = QCoreApplication::arguments();
    Session session;
    session.JobSitePath = arguments.value(1);
    session.UserSettingsPath = arguments.value(2);
    session.UserName = "pat";
    session.SiteTag = 1;
    const bool inserts = arguments.value(3) == "insert";
    for (int done = 1;; ++done) {
        const qint32 tag = inserts ? insertLine(session, requisitions, 10, 101)
                                   : cloneOrder(session, 70, QString("C-%1").arg(done));
        if (tag == 0)
            return 1;
        std::printf("%d\n", tag);
        std::fflush(stdout);
    }
}
