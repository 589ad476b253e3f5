#include "UiApplier.h"

#include <QWidget>

namespace {

bool isSet(const QString& value) {
    return !value.isEmpty() && value != QLatin1String("none");
}

QString imageUrl(const QString& imageFolder, const QString& image) {
    return QStringLiteral("url(\"%1%2\")").arg(imageFolder, image);
}

// The properties of one state; the Default state spells out every property so that a
// widget's look never comes from its parent's style sheet by accident.
QString stateRule(const QString& selector, const UiItem& item, UiItem::State state,
                  const QString& imageFolder) {
    const bool base = state == UiItem::Default;
    QString body;
    if (base)
        body += QStringLiteral("border: none; ");
    if (isSet(item.image[state]))
        body += QStringLiteral("border-image: %1 0 0 0 0 stretch stretch; ")
                    .arg(imageUrl(imageFolder, item.image[state]));
    else if (base)
        body += QStringLiteral("border-image: none; ");
    if (isSet(item.color[state]))
        body += QStringLiteral("background: %1; ").arg(item.color[state]);
    else if (base)
        body += QStringLiteral("background: transparent; ");
    if (isSet(item.textColor[state]) && (base || item.textColor[state] != item.textColor[0]))
        body += QStringLiteral("color: %1; ").arg(item.textColor[state]);
    if (isSet(item.border[state]))
        body += QStringLiteral("border: 1px solid %1; ").arg(item.border[state]);
    if (body.isEmpty())
        return QString();
    body.chop(1);
    return selector + '{' + body + '}';
}

} // namespace

bool UiApplier::apply(QWidget* widget, const QString& entryName, const UiItem& item,
                      const QString& styleSheet) {
    if (!item.usable()) {
        widget->hide();
        widget->setEnabled(false);
        return false;
    }
    widget->setObjectName(entryName);
    if (item.size.isValid())
        widget->setGeometry(item.x, item.y, item.size.width(), item.size.height());
    else
        widget->move(item.x, item.y);
    if (item.minimum.isValid())
        widget->setMinimumSize(item.minimum);
    if (item.maximum.isValid())
        widget->setMaximumSize(item.maximum);
    widget->setVisible(item.show);
    widget->setEnabled(true);
    widget->setContentsMargins(item.marginLeft, item.marginTop, item.marginRight,
                               item.marginBottom);
    widget->setFont(item.font);
    // Views that style themselves pass no sheet; theirs must stay.
    if (!styleSheet.isEmpty())
        widget->setStyleSheet(styleSheet);
    return true;
}

QString UiApplier::panelStyleSheet(const UiItem& item, const QString& imageFolder,
                                   const QString& selector) {
    const QString image = isSet(item.image[UiItem::Default])
                              ? imageUrl(imageFolder, item.image[UiItem::Default]) +
                                    QStringLiteral(" 0 0 0 0 full full")
                              : QStringLiteral("none");
    const QString background = item.color[UiItem::Default].isEmpty() ? QStringLiteral("transparent")
                                                                     : item.color[UiItem::Default];
    return QStringLiteral("%1{border: none; border-image: %2; background: %3;}")
        .arg(selector, image, background);
}

QString UiApplier::buttonStyleSheet(const UiItem& item, const QString& imageFolder,
                                    const QString& selector) {
    const std::pair<const char*, UiItem::State> states[] = {{"", UiItem::Default},
                                                            {":hover", UiItem::Hover},
                                                            {":checked", UiItem::Select},
                                                            {":pressed", UiItem::Select},
                                                            {":disabled", UiItem::Disable}};
    QStringList rules;
    for (const auto& [pseudo, state] : states) {
        const QString rule = stateRule(selector + QLatin1String(pseudo), item, state, imageFolder);
        if (!rule.isEmpty())
            rules << rule;
    }
    return rules.join(' ');
}

QString UiApplier::labelStyleSheet(const UiItem& item, const QString& selector) {
    const QString background =
        isSet(item.color[UiItem::Default]) ? item.color[UiItem::Default] : "transparent";
    return QStringLiteral("%1{border: none; background: %2; color: %3;}")
        .arg(selector, background, item.textColor[UiItem::Default]);
}
