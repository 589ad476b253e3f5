#include "LanguageView.h"

#include "AppGlobals.h"
#include "StatusLog.h"
#include "TavWidget.h"

#include <QColor>
#include <QComboBox>
#include <QFont>
#include <QLabel>
#include <QPushButton>

int LanguageView::currentIndex = 0;

LanguageView::LanguageView(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      m_form(new TavWidget("LanguageView", this)), m_combo(new QComboBox(m_form)) {
    logInfo("[LanguageView]: Enter LanguageView class.");
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    m_form->addChild(m_form, "centralWidget", TavWidget::Style::Panel);
    if (m_form->designSize().isValid())
        setFixedSize(m_form->designSize());

    auto* top = new QWidget(m_form);
    m_form->addChild(top, "topWidget", TavWidget::Style::Panel);
    m_form->addChild(new QLabel(top), "DlgName", TavWidget::Style::Label);
    auto* close = new QPushButton(top);
    m_form->addChild(close, "bClose", TavWidget::Style::Button);
    m_form->addChild(new QLabel(m_form), "context", TavWidget::Style::Label);
    m_form->addChild(m_combo, "comboLanguage", TavWidget::Style::Label);
    auto* ok = new QPushButton(m_form);
    auto* cancel = new QPushButton(m_form);
    m_form->addChild(ok, "bOk", TavWidget::Style::Button);
    m_form->addChild(cancel, "bCancel", TavWidget::Style::Button);

    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(cancel, &QPushButton::clicked, this, &QDialog::close);
    connect(ok, &QPushButton::clicked, this, &LanguageView::changeLanguage);

    m_combo->addItem(tr("English "));
    m_combo->addItem(tr("Korean "));
    QFont font("Noto Sans CJK KR");
    font.setWeight(63);
    font.setPixelSize(12);
    for (int i = 0; i < m_combo->count(); ++i) {
        m_combo->setItemData(i, 2, Qt::TextAlignmentRole);
        m_combo->setItemData(i, QColor("#FFFFFF"), Qt::ForegroundRole);
        m_combo->setItemData(i, font, Qt::FontRole);
    }
    currentIndex = AppGlobals::languageIndex;
    // Hebrew (2) is reachable only through the stored setting; the box then shows nothing.
    m_combo->setCurrentIndex(currentIndex < m_combo->count() ? currentIndex : -1);
    m_combo->setEditable(false);
    retranslateUi();
}

void LanguageView::retranslateUi() {
    m_form->retranslate();
}

void LanguageView::changeLanguage() {
    logDebug("LanguageView::changeLanguage");
    const int index = m_combo->currentIndex();
    if (index == currentIndex)
        return;
    currentIndex = index;
    AppGlobals::languageIndex = index;
    AppGlobals::installTranslation(index);
    emit onSendChangeLanguage();
    close();
}
