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
    : TavDialog("LanguageView", parent), m_combo(new QComboBox(form())) {
    logInfo("[LanguageView]: Enter LanguageView class.");
    TavWidget* view = form();
    view->addChild(new QLabel(view), "context", TavWidget::Style::Label);
    view->addChild(m_combo, "comboLanguage", TavWidget::Style::Label);
    auto* ok = new QPushButton(view);
    auto* cancel = new QPushButton(view);
    view->addChild(ok, "bOk", TavWidget::Style::Button);
    view->addChild(cancel, "bCancel", TavWidget::Style::Button);

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
    form()->retranslate();
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
