#include <QCoreApplication>

#include <gtest/gtest.h>

/// The application model needs an application object, whose event loop brings the results.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
