#include "TavShortcutTable.h"

#include "StatusLog.h"

#include <QCursor>
#include <QPushButton>

TavShortcutTable::TavShortcutTable(QWidget* parent) : TavWidget("TavShortcutTable", parent) {
    const struct {
        const char* name;
        const char* toolTip;
        void (TavShortcutTable::*signal)();
    } shortcuts[] = {
        {"bFile", QT_TR_NOOP("Open files"), &TavShortcutTable::onSendSignalFile},
        {"bFolder", QT_TR_NOOP("Open folder"), &TavShortcutTable::onSendSignalFolder},
        {"bMemory", QT_TR_NOOP("Memory card"), &TavShortcutTable::onSendSignalMemory},
        {"bPrint", QT_TR_NOOP("Print"), &TavShortcutTable::onSendSignalPrint},
        {"bLanguage", QT_TR_NOOP("Language"), &TavShortcutTable::onSendSignalLanguage},
        {"bCapture", QT_TR_NOOP("Capture"), &TavShortcutTable::onSendCapture},
        {"bSetting", QT_TR_NOOP("Settings"), &TavShortcutTable::onSendSignalSetting},
        {"bAbout", QT_TR_NOOP("About"), &TavShortcutTable::onSendSignalAbout},
    };
    for (const auto& shortcut : shortcuts) {
        auto* button = new QPushButton(this);
        button->setFocusPolicy(Qt::NoFocus);
        if (addChild(button, shortcut.name, Style::Button))
            connect(button, &QPushButton::clicked, this, shortcut.signal);
        m_shortcuts.append({button, shortcut.name, shortcut.toolTip});
    }
    onChangeToolTipLanguage();
}

void TavShortcutTable::onChangeToolTipLanguage() {
    logDebug("TavShortcutTable::onChangeToolTipLanguage");
    for (const Shortcut& shortcut : m_shortcuts)
        shortcut.button->setToolTip(tr(shortcut.toolTip));
}

void TavShortcutTable::setBackUi(int) {
    logDebug("TavShortcutTable::setBackUi");
    const QPoint pointer = QCursor::pos();
    for (const Shortcut& shortcut : m_shortcuts) {
        QPushButton* button = shortcut.button;
        button->setDown(false);
        const bool under = button->isVisible() &&
                           button->rect().contains(button->mapFromGlobal(pointer));
        button->setAttribute(Qt::WA_UnderMouse, under);
        button->update();
    }
}
