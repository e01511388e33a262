// order_creator SITE USER PONO STEPS: makes an order of requisition 10's tagged lines and dies at
// once after so many steps, as if the power had gone. Another program beside that of the test.
#include <QCoreApplication>
#include <csignal>

#include "purchasing/order_creation.h"
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
    int left = arguments.value(4).toInt();
    const auto created = createOrder(session, {.REQTAG = 10,
                                               .PONO = arguments.value(3),
                                               .usesCounter = true,
                                               .done = [&left](const char*) {
                                                   if (--left == 0)
                                                       std::raise(SIGKILL);
                                               }});
    return created ? 0 : 1;
}
