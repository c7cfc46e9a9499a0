// GoogleTest with the application object that the bus library needs.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
        std::fputs("no test has this name\n", stderr);
        return 1;
    }
    return result;
}
