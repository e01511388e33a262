#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv)
{
    // The store gives back idle locks and connections from the event loop, as in the program.
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
