// kxperson: a person at the dialogs of polkit, who always answers in the same way.
//
// usage: kxperson PROCESS ANSWER SECONDS RECORD MESSAGES
//   PROCESS   number of the process whose questions are answered
//   ANSWER    allow, refuse (a wrong password), dismiss, or think, which gives no answer
//   SECONDS   how long the person takes for each answer
//   RECORD    a file that gets a line with the name of the action for each question
//   MESSAGES  a file that gets a line with the text of the dialog for each question, and "taken
//             back" for a dialog that the daemon closes again
//
// It registers as the authentication agent of that process, prints "ready", and serves until it is
// ended. It runs as the administrator, so the daemon accepts its answers without a proof.

#include <unistd.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>
#include <QTimer>
#include <cstdio>
#include <fstream>
#include <string>

namespace {

const QString authorityName = QStringLiteral("org.freedesktop.PolicyKit1");
const QString agentPath = QStringLiteral("/org/kxconfig/Person");

QDBusMessage authorityCall(const QString& method) {
    return QDBusMessage::createMethodCall(
        authorityName, QStringLiteral("/org/freedesktop/PolicyKit1/Authority"),
        QStringLiteral("org.freedesktop.PolicyKit1.Authority"), method);
}

// The structure (sa{sv}) with which the daemon names processes and people.
QVariant named(const QString& kind, const QVariantMap& details) {
    QDBusArgument argument;
    argument.beginStructure();
    argument << kind << details;
    argument.endStructure();
    return QVariant::fromValue(argument);
}

class AuthenticationAgent : public QDBusVirtualObject {
public:
    AuthenticationAgent(QString answer, int seconds, std::string record, std::string messages)
        : _answer(std::move(answer))
        , _seconds(seconds)
        , _record(std::move(record))
        , _messages(std::move(messages)) {}

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() == QStringLiteral("BeginAuthentication")) {
            write(_messages, message.arguments().at(1).toString());
            write(_record, message.arguments().at(0).toString());
            QTimer::singleShot(_seconds * 1000, this,
                               [this, message, connection] { answer(message, connection); });
        } else {
            write(_messages, QStringLiteral("taken back")); // the other method cancels a question
            connection.send(message.createReply());
        }
        return true;
    }

private:
    static void write(const std::string& path, const QString& line) {
        std::ofstream(path, std::ios::app) << line.toStdString() << std::endl;
    }

    void answer(const QDBusMessage& question, const QDBusConnection& connection) {
        if (_answer == QStringLiteral("think")) {
            return;
        }
        if (_answer == QStringLiteral("dismiss")) {
            connection.send(question.createErrorReply(
                QStringLiteral("org.freedesktop.PolicyKit1.Error.Cancelled"), {}));
            return;
        }
        if (_answer == QStringLiteral("allow")) {
            constexpr int cookieOfQuestion = 4;
            auto word = authorityCall(QStringLiteral("AuthenticationAgentResponse2"));
            word << static_cast<quint32>(::getuid()) << question.arguments().at(cookieOfQuestion)
                 << named(QStringLiteral("unix-user"), {{QStringLiteral("uid"), 0U}});
            const auto reply = connection.call(word);
            if (reply.type() == QDBusMessage::ErrorMessage) {
                std::fprintf(stderr, "kxperson: %s\n", qPrintable(reply.errorMessage()));
            }
        }
        connection.send(question.createReply());
    }

    QString _answer;
    int _seconds;
    std::string _record;
    std::string _messages;
};

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const auto words = QCoreApplication::arguments();
    if (words.size() != 6) {
        std::fprintf(stderr, "usage: kxperson PROCESS ANSWER SECONDS RECORD MESSAGES\n");
        return 2;
    }
    auto bus = QDBusConnection::systemBus();
    AuthenticationAgent person(words[2], words[3].toInt(), words[4].toStdString(),
                               words[5].toStdString());
    bus.registerVirtualObject(agentPath, &person);

    auto registration = authorityCall(QStringLiteral("RegisterAuthenticationAgent"));
    registration << named(QStringLiteral("unix-process"),
                          {{QStringLiteral("pid"), words[1].toUInt()},
                           {QStringLiteral("start-time"), static_cast<quint64>(0)}})
                 << QStringLiteral("C") << agentPath;
    const auto reply = bus.call(registration);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        std::fprintf(stderr, "kxperson: %s\n", qPrintable(reply.errorMessage()));
        return 1;
    }
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
