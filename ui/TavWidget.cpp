#include "TavWidget.h"

#include "UiApplier.h"
#include "UiDescription.h"

#include <QAbstractButton>
#include <QLabel>
#include <QResizeEvent>

TavWidget::TavWidget(const QString& viewName, QWidget* parent)
    : QWidget(parent), m_viewName(viewName) {
    m_description.open(viewName);
    const UiItem central = m_description.item("centralWidget");
    if (central.usable() && central.size.isValid())
        m_layout.setDesignSize(central.size);
    setAttribute(Qt::WA_StyledBackground);
    if (central.usable())
        setStyleSheet(UiApplier::panelStyleSheet(central, m_description.imageFolder(),
                                                 metaObject()->className()));
}

const UiDescription& TavWidget::description() const {
    return m_description;
}

bool TavWidget::addChild(QWidget* child, const QString& name, Style style) {
    const UiItem item = m_description.item(name);
    QString sheet;
    const QString images = m_description.imageFolder();
    switch (style) {
    case Style::Panel:
        sheet = UiApplier::panelStyleSheet(item, images, child->metaObject()->className());
        child->setAttribute(Qt::WA_StyledBackground);
        break;
    case Style::Button:
        sheet = UiApplier::buttonStyleSheet(item, images, child->metaObject()->className());
        break;
    case Style::Label:
        sheet = UiApplier::labelStyleSheet(item, child->metaObject()->className());
        break;
    case Style::Field:
        sheet = UiApplier::fieldStyleSheet(item, child->metaObject()->className());
        break;
    case Style::Choice:
        sheet = UiApplier::choiceStyleSheet(item, images, child->metaObject()->className());
        break;
    case Style::None:
        break;
    }
    const bool enabled = UiApplier::apply(child, name, item, sheet);
    m_enabled.insert(name, enabled);
    if (enabled) {
        m_children.insert(name, child);
        m_layout.add(child, item);
        if (style == Style::Button || style == Style::Choice)
            child->setCursor(Qt::PointingHandCursor);
    }
    return enabled;
}

bool TavWidget::isEnabledChild(const QString& name) const {
    return m_enabled.value(name, false);
}

void TavWidget::retranslate() {
    UiDescription texts;
    texts.open(m_viewName);
    for (auto it = m_children.begin(); it != m_children.end(); ++it) {
        if (it.value().isNull())
            continue;
        const QString text = texts.translatedText(it.key());
        if (text.isEmpty())
            continue;
        if (auto* label = qobject_cast<QLabel*>(it.value().data()))
            label->setText(text);
        else if (auto* button = qobject_cast<QAbstractButton*>(it.value().data()))
            button->setText(text);
    }
}

void TavWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    m_layout.apply(event->size());
}
