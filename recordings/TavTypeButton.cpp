#include "TavTypeButton.h"

#include "StatusLog.h"

TavTypeButton::TavTypeButton(QWidget* parent, int fileType)
    : QPushButton(parent), m_fileType(fileType) {
    setCheckable(true);
    setChecked(true);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QPushButton::clicked, this, &TavTypeButton::onClickedButton);
}

void TavTypeButton::onClickedButton() {
    logDebug("TavTypeButton::onClickedButton");
    setChecked(!isChecked());
    emit onSendCheckedType(m_fileType);
}
