#include "tests/UnitStates.h"

#include "driver/WindowDriver.h"

#include <QFile>
#include <QStringDecoder>
#include <csignal>

namespace kx {

namespace {

void tellUnits(int signal) {
    for (const QString& process : qEnvironmentVariable("KX_UNITS_PIDS").split(' ')) {
        if (::kill(process.toInt(), signal) != 0) {
            throw VisitFailure{"there are no units with the process " + process};
        }
    }
}

QString inPairs(const QString& digits, QChar separator) {
    QStringList pairs;
    for (int place = 0; place < digits.size(); place += 2) {
        pairs.append(digits.mid(place, 2));
    }
    return pairs.join(separator);
}

// A window marks the characters that nobody sees and that act on a line. Those that the units of
// these tests can get are controls.
QString withMarks(QString text) {
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control) {
            character = QChar::ReplacementCharacter;
        }
    }
    return text;
}

// Units fill a short unit ID up with zero bytes, which a window leaves out.
QString withoutZeroBytesAtItsEnd(QString text) {
    while (text.endsWith(QChar::Null)) {
        text.chop(1);
    }
    return text;
}

// Adds a number when the first five bytes are zero, otherwise a text. Adds nothing when the bytes
// are no text.
void addUnitID(ShownParameters& shown, const QString& digits) {
    const QByteArray bytes = QByteArray::fromHex(digits.toLatin1());
    if (bytes.startsWith(QByteArray(5, '\0'))) {
        shown["unit ID"] = QString::number(static_cast<unsigned char>(bytes.back()));
        return;
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    if (!decoder.hasError()) {
        shown["unit ID"] = withMarks(withoutZeroBytesAtItsEnd(text));
    }
}

// Takes a line without the word "state".
ShownParameters shownOfState(const QString& line) {
    ShownParameters shown;
    const QStringList fields = line.split(' ');
    shown["serial number"] = inPairs(fields.first(), ' ');
    const QMap<QString, QString> nameOfField{
        {"hardware", "internal MAC address"},
        {"address", "internal IP address"},
        {"destination", "destination IP address"},
        {"destination-port", "destination Port number"},
        {"device-port", "device Port number"},
        {"destination-hardware", "destination MAC address"},
    };
    for (const QString& field : fields.mid(1)) {
        const QString name = field.section('=', 0, 0);
        const QString value = field.section('=', 1);
        if (name == "unit-id") {
            addUnitID(shown, value);
        } else if (nameOfField.contains(name)) {
            shown[nameOfField[name]] = value;
        }
    }
    return shown;
}

QStringList statesInRecord() {
    QFile record(qEnvironmentVariable("KX_UNITS_RECORD"));
    QStringList states;
    if (record.open(QIODevice::ReadOnly | QIODevice::Text)) {
        for (const QString& line : QString::fromLatin1(record.readAll()).split('\n')) {
            if (line.startsWith("state ")) {
                states.append(line.mid(QString("state ").size()));
            }
        }
    }
    return states;
}

} // namespace

void makeUnitsHonest() {
    tellUnits(SIGUSR1);
}

std::vector<ShownParameters> askUnitsForStates(int units) {
    const auto before = statesInRecord().size();
    tellUnits(SIGUSR2);
    QStringList states;
    WindowDriver::waitFor(QString("the states of %1 units").arg(units), [&] {
        states = statesInRecord().mid(before);
        return states.size() == units;
    });
    std::vector<ShownParameters> shown;
    for (const QString& state : states) {
        shown.push_back(shownOfState(state));
    }
    return shown;
}

} // namespace kx
