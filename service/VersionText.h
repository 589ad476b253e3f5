#pragma once

#include <QString>

// Versions as the service names them. The service answers "Version" with the newest
// version it knows; a number that is larger than the program's own means a newer program.
class VersionText {
public:
    // Longer texts are no version, whatever they hold.
    static constexpr int kMaxLength = 32;

    enum Verdict { NotAVersion, Newer, Latest };

    // Whether the text names a version at all: a number ("1.07") or numbers joined by dots
    // ("1.0.7"), nothing else, and at most kMaxLength characters.
    static bool isVersion(const QString& text);

    // Whether `offered` is newer than `installed`. Two plain numbers compare as numbers;
    // dotted versions part by part (1.0.10 is newer than 1.0.9), since as one number
    // neither would parse. False when either is not a version.
    static bool isNewer(const QString& offered, const QString& installed);

    // What the service's answer to "Version" means for the program's own version.
    static Verdict judge(const QString& answer);
    // The line that tells the user so.
    static QString verdictText(Verdict verdict, const QString& answer);
};
