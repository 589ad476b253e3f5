#include "TavTypeList.h"

#include "RecordingName.h"
#include "StatusLog.h"
#include "TavTypeButton.h"
#include "UiApplier.h"
#include "UiDescription.h"

#include <QKeyEvent>

namespace {

const char* const kTypeListView = "TavTypeList";
// Description entries and type letters of the toggles, in mask bit order.
const char* const kToggleNames[] = {"infinity", "event", "park", "user"};
const char* const kToggleLetters[] = {"I", "E", "P", "U"};

// A row of the pop-up: the type's icon and name on the left, the switch picture (Normal
// when off, Select when on) on the right.
QString toggleStyleSheet(const UiItem& item, const QString& images) {
    const auto image = [&](UiItem::State state) {
        return UiItem::isSet(item.image[state])
                   ? QStringLiteral("url(\"%1%2\")").arg(images, item.image[state])
                   : QStringLiteral("none");
    };
    const auto color = [&](UiItem::State state) {
        return UiItem::isSet(item.color[state]) ? item.color[state] : QStringLiteral("transparent");
    };
    return QStringLiteral("TavTypeButton{border: none; border-radius: 4px; background: %1; "
                          "color: %2; text-align: left; padding-left: %3px; padding-right: %4px; "
                          "image: %5; image-position: right center;} "
                          "TavTypeButton:hover{background: %6; color: %7;} "
                          "TavTypeButton:checked{image: %8;} "
                          "TavTypeButton:disabled{color: %9;}")
        .arg(color(UiItem::Default), item.textColor[UiItem::Default])
        .arg(item.marginLeft)
        .arg(item.marginRight)
        .arg(image(UiItem::Normal), color(UiItem::Hover), item.textColor[UiItem::Hover],
             image(UiItem::Select), item.textColor[UiItem::Disable]);
}

} // namespace

TavTypeList::TavTypeList(QWidget* parent) : QWidget(parent), m_back(new QWidget(this)) {
    logInfo("[TavTypeList]: Enter TavTypeList class.");
    UiDescription ui;
    ui.open(QString::fromLatin1(kTypeListView));
    const QString images = ui.imageFolder();
    const UiItem back = ui.item(QStringLiteral("typeListBack"));
    if (UiApplier::apply(
            m_back, QStringLiteral("typeListBack"), back,
            UiApplier::panelStyleSheet(back, images, QStringLiteral("#typeListBack")) +
                QStringLiteral(" #typeListBack{border: 1px solid %1; border-radius: 6px;}")
                    .arg(back.border[UiItem::Default])))
        resize(back.x + back.size.width(), back.y + back.size.height());
    const UiItem icon = ui.item(QStringLiteral("typeIcon"));
    for (int i = 0; i < 4; ++i) {
        auto* toggle = new TavTypeButton(m_back, 1 << i);
        const UiItem item = ui.item(QString::fromLatin1(kToggleNames[i]));
        UiApplier::apply(toggle, QString::fromLatin1(kToggleNames[i]), item,
                         toggleStyleSheet(item, images));
        toggle->setIcon(QIcon(RecordingName::typeIconPath(QString::fromLatin1(kToggleLetters[i]))));
        if (icon.size.isValid())
            toggle->setIconSize(icon.size);
        connect(toggle, &TavTypeButton::onSendCheckedType, this, &TavTypeList::onSetData);
        m_toggles[i] = toggle;
    }
    setFocusPolicy(Qt::StrongFocus);
    hide();
    onChangeLanguage();
}

TavTypeButton* TavTypeList::toggle(int typeBit) const {
    for (TavTypeButton* toggle : m_toggles)
        if (toggle->fileType() == typeBit)
            return toggle;
    return nullptr;
}

int TavTypeList::mask() const {
    int mask = 0;
    for (const TavTypeButton* toggle : m_toggles)
        if (toggle->isChecked())
            mask += toggle->fileType();
    return mask;
}

void TavTypeList::onSetMask(int mask) {
    for (TavTypeButton* toggle : m_toggles)
        toggle->setChecked((mask & toggle->fileType()) != 0);
}

void TavTypeList::onSetData() {
    logDebug("TavTypeList::onSetData");
    emit onSendCurrentType(mask());
}

void TavTypeList::onControlTypeList() {
    logDebug("TavTypeList::onControlTypeList");
    if (!m_shown) {
        show();
        raise();
        setFocus();
        m_shown = true;
        emit onSendTypeListSet(1);
    } else {
        hide();
        m_shown = false;
        emit onSendTypeListSet(0);
    }
}

void TavTypeList::onHideTypeList() {
    logDebug("TavTypeList::onHideTypeList");
    if (!m_shown)
        return;
    hide();
    m_shown = false;
    emit onSendTypeListSet(0);
}

void TavTypeList::onChangeLanguage() {
    UiDescription ui;
    ui.open(QString::fromLatin1(kTypeListView));
    for (int i = 0; i < 4; ++i)
        m_toggles[i]->setText(ui.translatedText(QString::fromLatin1(kToggleNames[i])));
}

void TavTypeList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        onHideTypeList();
        return;
    }
    QWidget::keyPressEvent(event);
}
