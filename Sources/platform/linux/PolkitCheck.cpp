#include "platform/linux/PolkitCheck.h"

#include "platform/qtcore/SystemBus.h"

#include <unistd.h>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <sstream>

namespace kx {

namespace {

const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");
const QString authorityName = QStringLiteral("org.freedesktop.PolicyKit1");
const QString authorityPath = QStringLiteral("/org/freedesktop/PolicyKit1/Authority");
const QString authorityInterface = QStringLiteral("org.freedesktop.PolicyKit1.Authority");
const QString resultSignature = QStringLiteral("(bba{ss})");

// Bit of CheckAuthorization's flags.
constexpr quint32 allowUserInteraction = 1;

// The time that the bus may take to answer, and the longer time that it may take to start polkit.
// The window does not react meanwhile.
constexpr std::chrono::milliseconds patienceWithBus{1000};
constexpr std::chrono::milliseconds patienceWithStart{2000};

using Details = QMap<QString, QString>;

// The start time of this process, in the kernel's clock ticks since boot. It is 0 when it cannot be
// read; polkit then looks it up itself. Together with the process number it names the process for
// good.
std::uint64_t startTime() {
    std::ifstream file("/proc/self/stat");
    const std::string line{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    // The program's name is in parentheses and may hold any characters. The fields after it are
    // numbers, except for the first. The start time is the 20th of them.
    const auto nameEnd = line.rfind(')');
    if (nameEnd == std::string::npos) {
        return 0;
    }
    std::istringstream fields(line.substr(nameEnd + 1));
    constexpr int fieldsBefore = 19;
    std::string skipped;
    for (int field = 0; field < fieldsBefore; ++field) {
        fields >> skipped;
    }
    std::uint64_t time = 0;
    fields >> time;
    return time;
}

// The structure (sa{sv}) that names this process.
QDBusArgument thisProcess() {
    const QVariantMap details{{QStringLiteral("pid"), static_cast<quint32>(::getpid())},
                              {QStringLiteral("start-time"), static_cast<quint64>(startTime())},
                              {QStringLiteral("uid"), static_cast<qint32>(::getuid())}};
    QDBusArgument subject;
    subject.beginStructure();
    subject << QStringLiteral("unix-process") << details;
    subject.endStructure();
    return subject;
}

QDBusArgument noDetails() {
    QDBusArgument details;
    details << Details();
    return details;
}

PolkitAnswer answerOf(const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != resultSignature) {
        return PolkitAnswer::unreachable;
    }
    const auto result = reply.arguments().constFirst().value<QDBusArgument>();
    bool isAuthorized = false;
    bool isChallenge = false;
    Details details;
    result.beginStructure();
    result >> isAuthorized >> isChallenge >> details;
    result.endStructure();
    if (isAuthorized) {
        return PolkitAnswer::authorized;
    }
    if (isChallenge) {
        return PolkitAnswer::nobodyAsked;
    }
    return details.contains(QStringLiteral("polkit.dismissed")) ? PolkitAnswer::dismissed
                                                                : PolkitAnswer::refused;
}

QDBusMessage answerTo(SystemBus& bus, const QDBusMessage& question,
                      std::chrono::milliseconds patience) {
    QDBusPendingCall call = bus.call(question, patience);
    call.waitForFinished();
    return call.reply();
}

QDBusMessage questionToBus(const QString& method) {
    auto question = QDBusMessage::createMethodCall(busName, busPath, busName, method);
    question << authorityName;
    return question;
}

void hearNothing(const QDBusMessage& /*signal*/) {}

bool isPolkitOn(SystemBus& bus) {
    const auto has = answerTo(bus, questionToBus(QStringLiteral("NameHasOwner")), patienceWithBus);
    if (has.type() != QDBusMessage::ReplyMessage) {
        return false;
    }
    if (has.arguments().value(0).toBool()) {
        return true;
    }
    auto start = questionToBus(QStringLiteral("StartServiceByName"));
    start << 0U; // no flags are defined
    return answerTo(bus, start, patienceWithStart).type() == QDBusMessage::ReplyMessage;
}

} // namespace

bool isPolkitThere() {
    SystemBus bus(hearNothing, patienceWithBus);
    return isPolkitOn(bus);
}

// A person may type a password meanwhile, so the answer has no time-out.
PolkitAnswer askPolkit(const std::string& action, bool mayAskPerson) {
    SystemBus bus(hearNothing, patienceWithBus);
    if (!isPolkitOn(bus)) {
        return PolkitAnswer::unreachable;
    }
    auto question = QDBusMessage::createMethodCall(authorityName, authorityPath, authorityInterface,
                                                   QStringLiteral("CheckAuthorization"));
    question << QVariant::fromValue(thisProcess()) << QString::fromStdString(action)
             << QVariant::fromValue(noDetails()) << (mayAskPerson ? allowUserInteraction : 0U)
             << QString(); // no name for a later cancellation
    return answerOf(answerTo(bus, question, SystemBus::endlessPatience));
}

} // namespace kx
