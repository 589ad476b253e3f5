#include "SettingOptAction.h"

#include "LocalSocket.h"
#include "SettingOpt.h"
#include "TavPrompt.h"
#include "UiApplier.h"
#include "UiDescription.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

SettingOptAction::SettingOptAction(const char* name, const char* buttonText,
                                   const UiDescription& look, const char* buttonEntry,
                                   QWidget* parent)
    : QWidget(parent), m_nameText(name), m_buttonText(buttonText), m_name(new QLabel(this)),
      m_hint(new QLabel(this)), m_button(new QPushButton(this)) {
    setObjectName(QStringLiteral("opt_") + QLatin1String(name));
    // Laid out as the value rows are, so that the two kinds line up on a page.
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(16, 6, 16, 6);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(2);
    const UiItem nameLook = look.item("optName");
    m_name->setStyleSheet(UiApplier::labelStyleSheet(nameLook));
    m_name->setFont(nameLook.font);
    const UiItem hintLook = look.item("optHint");
    m_hint->setStyleSheet(UiApplier::labelStyleSheet(hintLook));
    m_hint->setFont(hintLook.font);
    m_hint->setWordWrap(true);
    m_hint->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_hint->hide();
    const UiItem buttonLook = look.item(buttonEntry);
    m_button->setStyleSheet(UiApplier::buttonStyleSheet(buttonLook, look.imageFolder()));
    m_button->setFont(buttonLook.font);
    m_button->setMinimumSize(buttonLook.size);
    m_button->setCursor(Qt::PointingHandCursor);
    layout->addWidget(m_name, 0, 0);
    layout->addWidget(m_hint, 1, 0);
    layout->addWidget(m_button, 0, 1, 2, 1, Qt::AlignRight | Qt::AlignVCenter);
    layout->setColumnStretch(0, 1);
    connect(m_button, &QPushButton::clicked, this, &SettingOptAction::clicked);
    retranslate();
}

void SettingOptAction::setHint(const QString& text) {
    m_hint->setText(text);
    m_hint->setVisible(!text.isEmpty());
}

void SettingOptAction::retranslate() {
    m_name->setText(SettingOpt::translated(QLatin1String(m_nameText)));
    m_button->setText(SettingOpt::translated(QLatin1String(m_buttonText)));
}

void SettingOptAction::showLinkState() {
    setHint(LocalSocket::serviceConnected
                ? QString()
                : ServiceRequest::failureText(ServiceRequest::NotConnected));
}

void SettingOptAction::showWaiting() {
    m_button->setEnabled(false);
    setHint(ServiceRequest::waitingText());
}

void SettingOptAction::showAnswer(const QString& text) {
    m_button->setEnabled(true);
    setHint(text);
}

void SettingOptAction::showFailure(ServiceRequest::Failure failure) {
    showAnswer(ServiceRequest::failureText(failure));
    TavPrompt::inform(this, ServiceRequest::failureText(failure));
}
