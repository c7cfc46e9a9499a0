#include "platform/linux/PolkitCheck.h"

#include <unistd.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <limits>
#include <sstream>

namespace kx {

namespace {

const QString authorityName = QStringLiteral("org.freedesktop.PolicyKit1");
const QString authorityPath = QStringLiteral("/org/freedesktop/PolicyKit1/Authority");
const QString authorityInterface = QStringLiteral("org.freedesktop.PolicyKit1.Authority");
const QString resultSignature = QStringLiteral("(bba{ss})");

// Bit of CheckAuthorization's flags.
constexpr quint32 allowUserInteraction = 1;

// Milliseconds; this value stands for "for ever". A person types a password meanwhile.
constexpr int withoutTimeOut = std::numeric_limits<int>::max();

using Details = QMap<QString, QString>;

class SystemBus {
public:
    SystemBus()
        : _connection(QDBusConnection::connectToBus(QDBusConnection::SystemBus, name())) {}
    ~SystemBus() { QDBusConnection::disconnectFromBus(name()); }
    SystemBus(const SystemBus&) = delete;
    SystemBus& operator=(const SystemBus&) = delete;

    QDBusConnection& connection() { return _connection; }

private:
    static QString name() { return QStringLiteral("kxconfig-authorization"); }

    QDBusConnection _connection;
};

// When this process started, in the kernel's clock ticks since boot; 0, which polkit takes as
// "look it up", when that cannot be read. With the process number it names the process for good.
std::uint64_t startTime() {
    std::ifstream file("/proc/self/stat");
    const std::string line{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    // The program's name stands in parentheses and may hold anything; the fields after it are
    // numbers but for the first. The start time is the 20th of them.
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

} // namespace

bool isPolkitThere() {
    SystemBus bus;
    auto* const daemon = bus.connection().interface();
    return daemon != nullptr && (daemon->isServiceRegistered(authorityName).value() ||
                                 daemon->startService(authorityName).isValid());
}

PolkitAnswer askPolkit(const std::string& action, bool mayAskPerson) {
    SystemBus bus;
    auto question = QDBusMessage::createMethodCall(authorityName, authorityPath, authorityInterface,
                                                   QStringLiteral("CheckAuthorization"));
    question << QVariant::fromValue(thisProcess()) << QString::fromStdString(action)
             << QVariant::fromValue(noDetails()) << (mayAskPerson ? allowUserInteraction : 0U)
             << QString(); // nothing cancels it
    return answerOf(bus.connection().call(question, QDBus::Block, withoutTimeOut));
}

} // namespace kx
