#include "NameSchemes.h"

#include <QHash>
#include <QRegularExpression>

namespace {

// Parts every layout is made of.
#define YEAR "(?<year>(?:19|20)\\d\\d)"
#define MONTH "(?<month>0[1-9]|1[0-2])"
#define DAY "(?<day>0[1-9]|[12]\\d|3[01])"
#define HOUR "(?<hour>[01]\\d|2[0-3])"
#define MINUTE "(?<minute>[0-5]\\d)"
#define SECOND "(?<second>[0-5]\\d)"
#define SEQUENCE "(?<seq>\\d{2,6})"
#define WORD "[a-z]{2,9}"
#define CHANNEL "(?<channel>[fri]|[1-3])"
#define EXTENSION "\\.(?:mp4|mov|avi)$"

enum Type { Unknown = 0, Infinity = 1, Event = 2, Parking = 3, User = 4 };

const std::vector<NameSchemes::Scheme> kSchemes = {
    // 20240612_081614_NF.mp4: type letter (Normal, Event, Parking, Manual), channel letter
    {"YYYYMMDD_HHMMSS_TC",
     "^" YEAR MONTH DAY "_" HOUR MINUTE SECOND
     "_(?<type>[nepm])(?<channel>[fri])(?:_[a-z0-9]+)?" EXTENSION,
     Infinity},
    // REC_2024_06_12_08_15_26_F.MP4, 2024_06_12_08_15_26.MP4
    {"[WORD_]YYYY_MM_DD_HH_MM_SS[_SEQ][_C]",
     "^(?:(?<type>" WORD ")_)?" YEAR "_" MONTH "_" DAY "_" HOUR "_" MINUTE "_" SECOND
     "(?:_" SEQUENCE ")?(?:_" CHANNEL ")?" EXTENSION,
     Infinity},
    // 2024_0612_081502_001F.MP4, 2024_0612_081502_001EF.MP4
    {"YYYY_MMDD_HHMMSS_SEQ[T][C]",
     "^" YEAR "_" MONTH DAY "_" HOUR MINUTE SECOND "_" SEQUENCE
     "(?<type>[nepm])?(?<channel>[fri])?" EXTENSION,
     Infinity},
    // NO20240612-081514-000002F.MP4, 20240612-081602.MOV
    {"[WORD]YYYYMMDD-HHMMSS[-SEQ][C]",
     "^(?<type>[a-z]{2,3})?" YEAR MONTH DAY "-" HOUR MINUTE SECOND "(?:-" SEQUENCE ")?(?:-?"
     "(?<channel>[fri]))?" EXTENSION,
     Infinity},
    // 20240612_081538_2.mp4, FILE_20240612_081538_0001_EVT_F.MP4
    {"[WORD_]YYYYMMDD_HHMMSS[_SEQ][_WORD][_C]",
     "^(?:(?<type>" WORD ")_)?" YEAR MONTH DAY "_" HOUR MINUTE SECOND "(?:_" SEQUENCE ")?(?:_"
     "(?<typeAfter>" WORD "))?(?:_" CHANNEL ")?" EXTENSION,
     Infinity},
    // GH010123.MP4, GOPR0123.MP4, DJI_0123.MP4: numbered files of action cameras, started by
    // hand; their date is the container's.
    {"numbered action camera", "^(?:g[hxp]\\d{6}|gopr\\d{4}|dji_\\d{4}|ydxj\\d{4})" EXTENSION,
     User},
};

const QHash<QString, int>& typeWords() {
    static const QHash<QString, int> words = [] {
        QHash<QString, int> table;
        for (const char* word : {"N", "NO", "NOR", "NORM", "NORMAL", "REC", "RECORD", "INF", "LOOP",
                                 "CONT", "CONTINUOUS", "MOVIE", "VIDEO"})
            table.insert(QLatin1String(word), Infinity);
        for (const char* word : {"E", "EV", "EVT", "EVE", "EVENT", "EMR", "EMER", "EMERGENCY", "RO",
                                 "LOCK", "LOCKED", "PROTECT", "PROTECTED", "SOS", "IMPACT"})
            table.insert(QLatin1String(word), Event);
        for (const char* word : {"P", "PA", "PK", "PAR", "PRK", "PARK", "PARKING", "MOT", "MOTION"})
            table.insert(QLatin1String(word), Parking);
        for (const char* word : {"M", "MA", "MAN", "MNL", "MANUAL", "USR", "USER"})
            table.insert(QLatin1String(word), User);
        return table;
    }();
    return words;
}

const std::vector<QRegularExpression>& compiled() {
    static const std::vector<QRegularExpression> expressions = [] {
        std::vector<QRegularExpression> list;
        for (const NameSchemes::Scheme& scheme : kSchemes)
            list.emplace_back(QString::fromLatin1(scheme.pattern),
                              QRegularExpression::CaseInsensitiveOption);
        return list;
    }();
    return expressions;
}

} // namespace

const std::vector<NameSchemes::Scheme>& NameSchemes::table() {
    return kSchemes;
}

bool NameSchemes::isOwnForm(const QString& fileName) {
    static const QRegularExpression own(QStringLiteral("\\d{8}_\\d{6}_[A-Za-z]{3}_?\\d"));
    return own.match(fileName).hasMatch();
}

int NameSchemes::typeOfWord(const QString& word) {
    return typeWords().value(word.toUpper(), Unknown);
}

int NameSchemes::channelOfToken(const QString& token) {
    if (token.size() != 1)
        return -1;
    switch (token.at(0).toUpper().unicode()) {
    case 'F':
    case '1':
        return 0;
    case 'R':
    case '2':
        return 1;
    case 'I':
    case '3':
        return 2;
    default:
        return -1;
    }
}

QString NameSchemes::tokenOfChannel(int channel, const QString& token) {
    if (channel < 0 || channel > 2 || token.size() != 1)
        return QString();
    if (token.at(0).isDigit())
        return QString::number(channel + 1);
    const QString letter = QString(QLatin1Char("FRI"[channel]));
    return token.at(0).isLower() ? letter.toLower() : letter;
}

ForeignName NameSchemes::parse(const QString& fileName, const QString& folderName) {
    ForeignName name;
    if (isOwnForm(fileName))
        return name;
    const std::vector<QRegularExpression>& expressions = compiled();
    for (std::size_t i = 0; i < expressions.size(); ++i) {
        const QRegularExpressionMatch match = expressions[i].match(fileName);
        if (!match.hasMatch())
            continue;
        if (!match.captured(QStringLiteral("year")).isEmpty()) {
            const QDate date(match.captured(QStringLiteral("year")).toInt(),
                             match.captured(QStringLiteral("month")).toInt(),
                             match.captured(QStringLiteral("day")).toInt());
            const QTime time(match.captured(QStringLiteral("hour")).toInt(),
                             match.captured(QStringLiteral("minute")).toInt(),
                             match.captured(QStringLiteral("second")).toInt());
            // The layouts check digits only; 31 February is no recording's date.
            if (!date.isValid())
                continue;
            // Cameras write their own clock: the time as it reads, without a zone.
            name.start = QDateTime(date, time, Qt::UTC);
        }
        name.valid = true;
        name.scheme = static_cast<int>(i);
        int type = typeOfWord(match.captured(QStringLiteral("type")));
        if (type == Unknown)
            type = typeOfWord(match.captured(QStringLiteral("typeAfter")));
        if (type == Unknown)
            type = typeOfWord(folderName);
        name.type = type != Unknown ? type : kSchemes[i].defaultType;
        const QString channel = match.captured(QStringLiteral("channel"));
        if (!channel.isEmpty()) {
            name.channel = channelOfToken(channel);
            name.channelStart = match.capturedStart(QStringLiteral("channel"));
            name.channelToken = channel;
        }
        return name;
    }
    return name;
}
