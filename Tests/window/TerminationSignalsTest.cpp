#include "platform/qtcore/TerminationSignals.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QTest>
#include <QTimer>
#include <csignal>

namespace kx {

namespace {

class TerminationSignalsTest : public testing::TestWithParam<int> {
protected:
    static bool isDefault(int signal) {
        struct sigaction action {};
        ::sigaction(signal, nullptr, &action);
        return action.sa_handler == SIG_DFL;
    }

    int ends = 0;
};

} // namespace

TEST_P(TerminationSignalsTest, EndTheApplicationFromTheEventLoop) {
    const TerminationSignals handling([this] { ++ends; });
    ::raise(GetParam());
    EXPECT_EQ(ends, 0) << "not from inside the signal";
    EXPECT_TRUE(QTest::qWaitFor([this] { return ends == 1; }));
}

TEST_P(TerminationSignalsTest, EndItBelowADialogToo) {
    QDialog dialog;
    const TerminationSignals handling([&] {
        ++ends;
        dialog.reject();
    });
    QTimer::singleShot(0, &dialog, [] { ::raise(GetParam()); });
    dialog.exec();
    EXPECT_EQ(ends, 1);
}

TEST_P(TerminationSignalsTest, AreTakenOnceSoThatASecondOneEndsAProgramThatHangs) {
    const TerminationSignals handling([] {});
    EXPECT_FALSE(isDefault(GetParam()));
    ::raise(GetParam());
    EXPECT_TRUE(isDefault(GetParam()));
}

TEST_P(TerminationSignalsTest, AreLeftAloneWhenTheyWereIgnoredAndAfterTheObject) {
    std::signal(GetParam(), SIG_IGN);
    {
        const TerminationSignals handling([this] { ++ends; });
        ::raise(GetParam());
        QTest::qWait(50);
    }
    EXPECT_EQ(ends, 0);
    std::signal(GetParam(), SIG_DFL);
    {
        const TerminationSignals handling([] {});
    }
    EXPECT_TRUE(isDefault(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Each, TerminationSignalsTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

} // namespace kx
