#include "TavPlayButton.h"

TavPlayButton::TavPlayButton(QWidget* parent) : QPushButton(parent) {
    setCheckable(true);
    setChecked(true);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
}

QString TavPlayButton::styleSheet(const QString& imageFolder, const QString& hoverColour,
                                  int radius) {
    const auto picture = [&imageFolder](const char* name) {
        return QStringLiteral("border-image: url(\"%1%2\") 0 0 0 0 stretch stretch;")
            .arg(imageFolder, QLatin1String(name));
    };
    QString sheet =
        QStringLiteral(
            "TavPlayButton{border: none; border-radius: %5px; background: transparent; %1} "
            "TavPlayButton:checked{%2} "
            "TavPlayButton:disabled{%3} "
            "TavPlayButton:checked:disabled{%4}")
            .arg(picture("pause_on.svg"), picture("play_on.svg"), picture("pause_off.svg"),
                 picture("play_off.svg"))
            .arg(radius);
    if (!hoverColour.isEmpty() && hoverColour != QLatin1String("none"))
        sheet += QStringLiteral(" TavPlayButton:hover{background: %1;}").arg(hoverColour);
    return sheet;
}
