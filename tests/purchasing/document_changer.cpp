// Changes documents until it is killed, beside the program of the test:
//   document_changer SITE USER insert   blank lines above line 101 of requisition 10
//   document_changer SITE USER clone    orders out of order 70
//   document_changer SITE USER create PONO STEPS   one order of requisition 10's tagged lines; it
//     dies at once after so many steps, as if the power had gone
// The first two write a line for each time that it is done.
#include <QCoreApplication>
#include <csignal>

#include "purchasing/document_lines.h"
#include "purchasing/document_marks.h"
#include "purchasing/order_creation.h"
#include "tests/support/complaints.h"

namespace {

bool createUntil(const Session& session, const QString& PONO, int steps)
{
    const auto done = [&steps](const char*) {
        if (--steps == 0)
            std::raise(SIGKILL);
    };
    return createOrder(session, {.REQTAG = 10, .PONO = PONO, .usesCounter = true, .done = done})
        .has_value();
}

}  // namespace

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
    const QString what = arguments.value(3);
    if (what == "create")
        return createUntil(session, arguments.value(4), arguments.value(5).toInt()) ? 0 : 1;
    for (int done = 1;; ++done) {
        const qint32 tag = what == "insert" ? insertLine(session, requisitions, 10, 101)
                                            : cloneOrder(session, 70, QString("C-%1").arg(done));
        if (tag == 0)
            return 1;
        std::printf("%d\n", tag);
        std::fflush(stdout);
    }
}
