#pragma once

#include <QFont>
#include <QSize>
#include <QString>

#include <array>

// One child's record from a view's UI description file. Every field has the default that
// applies when its key is absent.
struct UiItem {
    enum State { Default = 0, Normal, Select, Hover, Disable, StateCount };
    using StateStrings = std::array<QString, StateCount>;

    int status = 0; // -1: the name is not in the file
    bool show = false;
    bool enable = false;
    int x = 0;
    int y = 0;
    QSize size;
    QSize minimum;
    QSize maximum;
    int marginLeft = 0;
    int marginTop = 0;
    int marginRight = 0;
    int marginBottom = 0;
    int scaleX = 0;
    int scaleY = 0;
    int scaleWidth = 3;
    int scaleHeight = 3;
    QFont font;
    QString text;
    StateStrings textColor{"#000000", "#000000", "#000000", "#000000", "#000000"};
    StateStrings color;
    StateStrings image{"none", "none", "none", "none", "none"};
    StateStrings border{"none", "none", "none", "none", "none"};

    // True when the view should build and show this child at all.
    bool usable() const { return status != -1 && enable; }
    // Whether a value of the file says anything: "none" and an empty value do not.
    static bool isSet(const QString& value) {
        return !value.isEmpty() && value != QLatin1String("none");
    }
    // The background colour of a state, or fallback where the file gives none.
    QString colourOr(State state, const char* fallback) const {
        return isSet(color[state]) ? color[state] : QString::fromLatin1(fallback);
    }
};
