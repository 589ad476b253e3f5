#include "UiApplier.h"

#include <QWidget>

namespace {

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
    if (UiItem::isSet(item.image[state]))
        body += QStringLiteral("border-image: %1 0 0 0 0 stretch stretch; ")
                    .arg(imageUrl(imageFolder, item.image[state]));
    else if (base)
        body += QStringLiteral("border-image: none; ");
    if (UiItem::isSet(item.color[state]))
        body += QStringLiteral("background: %1; ").arg(item.color[state]);
    else if (base)
        body += QStringLiteral("background: transparent; ");
    if (UiItem::isSet(item.textColor[state]) && (base || item.textColor[state] != item.textColor[0]))
        body += QStringLiteral("color: %1; ").arg(item.textColor[state]);
    if (UiItem::isSet(item.border[state]))
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
    const QString image = UiItem::isSet(item.image[UiItem::Default])
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
        UiItem::isSet(item.color[UiItem::Default]) ? item.color[UiItem::Default] : "transparent";
    return QStringLiteral("%1{border: none; background: %2; color: %3;}")
        .arg(selector, background, item.textColor[UiItem::Default]);
}

QString UiApplier::fieldStyleSheet(const UiItem& item, const QString& selector) {
    const QString background =
        UiItem::isSet(item.color[UiItem::Default]) ? item.color[UiItem::Default] : "transparent";
    const QString border = UiItem::isSet(item.border[UiItem::Default]) ? item.border[UiItem::Default]
                                                               : QStringLiteral("#3a4150");
    const QString accent =
        UiItem::isSet(item.color[UiItem::Select]) ? item.color[UiItem::Select] : QStringLiteral("#2f7cf6");
    return QStringLiteral("%1{background: %2; color: %3; border: 1px solid %4; border-radius: 3px; "
                          "padding: 0px 6px; selection-background-color: %5; "
                          "selection-color: #ffffff;} %1:focus{border-color: %5;} "
                          "%1:disabled{color: #6b7280;} %1::chunk{background: %5; "
                          "border-radius: 2px;}")
        .arg(selector, background, item.textColor[UiItem::Default], border, accent);
}

QString UiApplier::choiceStyleSheet(const UiItem& item, const QString& imageFolder,
                                    const QString& selector) {
    const QString radius =
        selector.contains(QLatin1String("Radio")) ? QStringLiteral("8px") : QStringLiteral("3px");
    QString sheet = labelStyleSheet(item, selector) +
                    QStringLiteral(" %1{spacing: 8px;} %1::indicator{width: 16px; height: 16px; "
                                   "border: 1px solid #8a93a3; border-radius: %2; "
                                   "background: transparent;} %1:disabled{color: #6b7280;}")
                        .arg(selector, radius);
    if (UiItem::isSet(item.image[UiItem::Select]))
        sheet += QStringLiteral(" %1::indicator:checked{border: none; image: %2;}")
                     .arg(selector, imageUrl(imageFolder, item.image[UiItem::Select]));
    else
        sheet += QStringLiteral(" %1::indicator:checked{background: %2; border-color: %2;}")
                     .arg(selector, UiItem::isSet(item.color[UiItem::Select]) ? item.color[UiItem::Select]
                                                                      : QStringLiteral("#2f7cf6"));
    return sheet;
}
