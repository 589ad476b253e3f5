#include "TavDialog.h"

#include "TavWidget.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

TavDialog::TavDialog(const QString& viewName, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), m_form(new TavWidget(viewName, this)) {
    m_form->addChild(m_form, "centralWidget", TavWidget::Style::Panel);
    if (m_form->designSize().isValid())
        setFixedSize(m_form->designSize());
    auto* top = new QWidget(m_form);
    m_form->addChild(top, "topWidget", TavWidget::Style::Panel);
    m_title = new QLabel(top);
    m_form->addChild(m_title, "DlgName", TavWidget::Style::Label);
    auto* close = new QPushButton(top);
    m_form->addChild(close, "bClose", TavWidget::Style::Button);
    close->setFocusPolicy(Qt::NoFocus);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
}

void TavDialog::showEvent(QShowEvent* event) {
    if (windowTitle().isEmpty())
        setWindowTitle(m_title->text());
    QDialog::showEvent(event);
}

void TavDialog::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_dragging = true;
        m_dragOffset = event->globalPos() - frameGeometry().topLeft();
    }
    QDialog::mousePressEvent(event);
}

void TavDialog::mouseMoveEvent(QMouseEvent* event) {
    if (m_dragging && (event->buttons() & Qt::LeftButton))
        move(event->globalPos() - m_dragOffset);
    QDialog::mouseMoveEvent(event);
}

void TavDialog::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        m_dragging = false;
    QDialog::mouseReleaseEvent(event);
}
