#include "WaitAlertView.h"

#include "StatusLog.h"
#include "TavWidget.h"

#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>

WaitAlertView::WaitAlertView(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      m_form(new TavWidget("WaitAlertView", this)) {
    logInfo("[WaitAlertView]: Enter WaitAlertView class.");
    m_form->addChild(m_form, "centralWidget", TavWidget::Style::Panel);
    if (m_form->designSize().isValid())
        setFixedSize(m_form->designSize());
    m_form->addChild(new QLabel(m_form), "context", TavWidget::Style::Label);
    auto* progress = new QProgressBar(m_form);
    // No known end: the bar runs back and forth.
    progress->setRange(0, 0);
    progress->setTextVisible(false);
    m_form->addChild(progress, "progress", TavWidget::Style::Panel);
    progress->setStyleSheet(progress->styleSheet() +
                            " QProgressBar::chunk{background: #2f7cf6; border-radius: 2px;}");
    m_form->retranslate();
    const QWidget* anchor = parent != nullptr ? parent->window() : nullptr;
    if (anchor != nullptr)
        move(anchor->geometry().center() - rect().center());
    else if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->geometry().center() - rect().center());
}
