#include "platform/linux/PolkitCheck.h"

#include "platform/qtcore/SystemBus.h"
#include "support/LocalizedText.h"

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
#include <memory>
#include <optional>
#include <sstream>

namespace kx {

namespace {

const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");
const QString authorityName = QStringLiteral("org.freedesktop.PolicyKit1");
const QString authorityPath = QStringLiteral("/org/freedesktop/PolicyKit1/Authority");
const QString authorityInterface = QStringLiteral("org.freedesktop.PolicyKit1.Authority");
const QString resultSignature = QStringLiteral("(bba{ss})");

// The time that the bus may take to answer, and the longer time that it may take to start polkit.
constexpr std::chrono::milliseconds patienceWithBus{1000};
constexpr std::chrono::milliseconds patienceWithStart{2000};

// The time between two looks at a polkit that has a person asked.
constexpr std::chrono::milliseconds betweenLooksAtPolkit{1000};

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
    return isChallenge ? PolkitAnswer::nobodyAsked : PolkitAnswer::refused;
}

// The answer; an error when there is none in time, and when the person gives up.
QDBusMessage answerTo(SystemBus& bus, const QDBusMessage& question,
                      std::chrono::milliseconds patience, Waiting& waiting) {
    const QDBusPendingCall call = bus.call(question, patience);
    waiting.until([&call] { return call.isFinished(); },
                  localizedText("Waiting for administrator rights."));
    return call.isFinished() ? call.reply() : QDBusMessage();
}

QDBusMessage questionToBus(const QString& method) {
    auto question = QDBusMessage::createMethodCall(busName, busPath, busName, method);
    question << authorityName;
    return question;
}

void hearNothing(const QDBusMessage& /*signal*/) {}

bool isPolkitOn(SystemBus& bus, Waiting& waiting) {
    const auto has =
        answerTo(bus, questionToBus(QStringLiteral("NameHasOwner")), patienceWithBus, waiting);
    if (has.type() != QDBusMessage::ReplyMessage) {
        return false;
    }
    if (has.arguments().value(0).toBool()) {
        return true;
    }
    auto start = questionToBus(QStringLiteral("StartServiceByName"));
    start << 0U; // no flags are defined
    return answerTo(bus, start, patienceWithStart, waiting).type() == QDBusMessage::ReplyMessage;
}

QDBusMessage questionToPolkit(const QString& method) {
    return QDBusMessage::createMethodCall(authorityName, authorityPath, authorityInterface, method);
}

QDBusMessage questionAbout(const std::string& action) {
    constexpr quint32 askNobody = 0;
    auto question = questionToPolkit(QStringLiteral("CheckAuthorization"));
    question << QVariant::fromValue(thisProcess()) << QString::fromStdString(action)
             << QVariant::fromValue(noDetails()) << askNobody << QString();
    return question;
}

// Looks from time to time whether polkit answers a question that needs nobody.
class SilenceWatch {
public:
    bool isSilent() {
        if (_isSilent) {
            return true;
        }
        if (!_look.has_value()) {
            if (Clock::now() >= _nextLook) {
                auto question = QDBusMessage::createMethodCall(
                    authorityName, authorityPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                    QStringLiteral("Get"));
                question << authorityInterface << QStringLiteral("BackendName");
                _look = _bus.call(question, patienceWithPolkit);
            }
        } else if (_look->isFinished()) {
            _isSilent = _look->isError();
            _look.reset();
            _nextLook = Clock::now() + betweenLooksAtPolkit;
        }
        return _isSilent;
    }

private:
    using Clock = std::chrono::steady_clock;

    SystemBus _bus{hearNothing, patienceWithBus};
    std::optional<QDBusPendingCall> _look;
    Clock::time_point _nextLook = Clock::now() + betweenLooksAtPolkit;
    bool _isSilent = false;
};

} // namespace

bool isPolkitThere(Waiting& waiting) {
    SystemBus bus(hearNothing, patienceWithBus);
    return isPolkitOn(bus, waiting);
}

std::function<bool()> watchPolkitForSilence() {
    return [watch = std::make_shared<SilenceWatch>()] { return watch->isSilent(); };
}

PolkitAnswer askPolkit(const std::string& action, Waiting& waiting) {
    SystemBus bus(hearNothing, patienceWithBus);
    return isPolkitOn(bus, waiting)
               ? answerOf(answerTo(bus, questionAbout(action), patienceWithPolkit, waiting))
               : PolkitAnswer::unreachable;
}

} // namespace kx
