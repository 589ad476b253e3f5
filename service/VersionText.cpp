#include "VersionText.h"

#include "AppGlobals.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QVersionNumber>

bool VersionText::isVersion(const QString& text) {
    // Digits and dots only: toDouble() alone would take "inf", "1e9" or blanks around.
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("[0-9]{1,9}(\\.[0-9]{1,9})*")));
    return text.size() <= kMaxLength && pattern.match(text).hasMatch();
}

bool VersionText::isNewer(const QString& offered, const QString& installed) {
    if (!isVersion(offered) || !isVersion(installed))
        return false;
    bool offeredNumber = false;
    bool installedNumber = false;
    const double offeredValue = offered.toDouble(&offeredNumber);
    const double installedValue = installed.toDouble(&installedNumber);
    if (offeredNumber && installedNumber)
        return offeredValue > installedValue;
    return QVersionNumber::fromString(offered) > QVersionNumber::fromString(installed);
}

VersionText::Verdict VersionText::judge(const QString& answer) {
    if (!isVersion(answer))
        return NotAVersion;
    return isNewer(answer, AppGlobals::version) ? Newer : Latest;
}

QString VersionText::verdictText(Verdict verdict, const QString& answer) {
    switch (verdict) {
    case Newer:
        return QCoreApplication::translate("VersionText", "Version %1 is out.").arg(answer);
    case Latest:
        return QCoreApplication::translate("VersionText", "This is the latest version.");
    case NotAVersion:
        break;
    }
    return QCoreApplication::translate(
        "VersionText", "The service gave an answer this program does not understand.");
}
