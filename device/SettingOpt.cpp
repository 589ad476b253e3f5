#include "SettingOpt.h"

#include "TavButton.h"
#include "TavComboBox.h"
#include "TavToggleButton.h"
#include "UiApplier.h"
#include "UiDescription.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

namespace {

// The look of one of the row's parts, from the dialog's description.
QString sheetOf(const UiDescription& look, const char* entry, const QString& selector,
                bool button) {
    const UiItem item = look.item(entry);
    if (!item.usable())
        return QString();
    return button ? UiApplier::buttonStyleSheet(item, look.imageFolder(), selector)
                  : UiApplier::labelStyleSheet(item, selector);
}

QFont fontOf(const UiDescription& look, const char* entry) {
    return look.item(entry).font;
}

} // namespace

SettingOpt::SettingOpt(const SettingRecord& record, const UiDescription& look, QWidget* parent)
    : QWidget(parent), m_record(record), m_name(new QLabel(translated(record.name), this)) {
    setObjectName("opt_" + record.name);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(16, 6, 16, 6);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(2);
    m_name->setStyleSheet(sheetOf(look, "optName", "QLabel", false));
    m_name->setFont(fontOf(look, "optName"));
    layout->addWidget(m_name, 0, 0);
    if (!record.text.isEmpty()) {
        m_hint = new QLabel(translated(record.text), this);
        m_hint->setStyleSheet(sheetOf(look, "optHint", "QLabel", false));
        m_hint->setFont(fontOf(look, "optHint"));
        m_hint->setWordWrap(true);
        layout->addWidget(m_hint, 1, 0);
    }
    buildControl(look);
    layout->addWidget(m_control, 0, 1, m_hint != nullptr ? 2 : 1, 1,
                      Qt::AlignRight | Qt::AlignVCenter);
    layout->setColumnStretch(0, 1);
    setChangeable(true);
}

QString SettingOpt::translated(const QString& text) {
    return QCoreApplication::translate("SettingOpt", text.toUtf8().constData());
}

QLabel* SettingOpt::makePageTitle(const QString& text, const UiDescription& look, QWidget* parent) {
    auto* title = new QLabel(text, parent);
    title->setStyleSheet(UiApplier::labelStyleSheet(look.item("pageTitle")));
    title->setFont(look.item("pageTitle").font);
    return title;
}

void SettingOpt::retranslate() {
    m_name->setText(translated(m_record.name));
    if (m_hint != nullptr)
        m_hint->setText(translated(m_record.text));
    for (int i = 0; i < m_record.choices.size(); ++i) {
        const QString label = translated(m_record.choices[i].name);
        if (m_combo != nullptr && i < m_combo->count())
            m_combo->setItemText(i, label);
        if (m_choices != nullptr) {
            if (QAbstractButton* button = m_choices->button(m_record.choices[i].value))
                button->setText(label);
        }
    }
}

void SettingOpt::buildControl(const UiDescription& look) {
    switch (m_record.type) {
    case ToggleKind:
        m_toggle = new TavToggleButton(this);
        m_toggle->setStyleSheet(sheetOf(look, "optToggle", "QPushButton", true));
        m_toggle->setFixedSize(look.item("optToggle").size.isValid() ? look.item("optToggle").size
                                                                     : m_toggle->sizeHint());
        connect(m_toggle, &QPushButton::clicked, this,
                [this](bool on) { choose(toggleValue(on)); });
        m_control = m_toggle;
        break;
    case ChoiceKind: {
        m_control = new QWidget(this);
        auto* row = new QHBoxLayout(m_control);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(4);
        m_choices = new QButtonGroup(this);
        const QString sheet = sheetOf(look, "optChoice", "QPushButton", true);
        for (const SettingRecord::Choice& choice : m_record.choices) {
            auto* button = new TavButton(translated(choice.name), m_control);
            button->setStyleSheet(sheet);
            button->setFont(fontOf(look, "optChoice"));
            button->setMinimumSize(look.item("optChoice").size);
            m_choices->addButton(button, choice.value);
            row->addWidget(button);
        }
        connect(m_choices, &QButtonGroup::idClicked, this, &SettingOpt::choose);
        break;
    }
    case CardTextKind:
        m_text = new QLabel(this);
        m_text->setStyleSheet(sheetOf(look, "optText", "QLabel", false));
        m_text->setFont(fontOf(look, "optText"));
        m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
        m_control = m_text;
        break;
    case ComboKind:
    default:
        m_combo = new TavComboBox(this);
        m_combo->setStyleSheet(
            sheetOf(look, "optCombo", "QComboBox", false) +
            QStringLiteral(" QComboBox{border: 1px solid #3a4150; padding: 2px 8px;}"
                           " QComboBox:hover{border-color: #2f7cf6;}"
                           " QComboBox::drop-down{border: none; width: 24px;}"
                           " QComboBox::down-arrow{image: url(\"%1combo-arrow.svg\");"
                           " width: 20px; height: 20px;}"
                           " QComboBox QAbstractItemView{background: #262b35; color: #e4e7ec;"
                           " selection-background-color: #2f7cf6;}")
                .arg(look.imageFolder()));
        m_combo->setFont(fontOf(look, "optCombo"));
        m_combo->setMinimumSize(look.item("optCombo").size);
        for (const SettingRecord::Choice& choice : m_record.choices)
            m_combo->addItem(translated(choice.name), choice.value);
        connect(m_combo, qOverload<int>(&QComboBox::activated), this,
                [this](int index) { choose(m_combo->itemData(index).toInt()); });
        m_control = m_combo;
        break;
    }
}

int SettingOpt::toggleValue(bool on) const {
    const int index = on ? 1 : 0;
    return index < m_record.choices.size() ? m_record.choices[index].value : index;
}

void SettingOpt::choose(int value) {
    if (value == m_value)
        return;
    m_value = value;
    emit onSendValueChanged(m_record.name, value);
}

void SettingOpt::setValue(int value) {
    m_value = value;
    if (m_combo != nullptr)
        m_combo->setCurrentIndex(m_combo->findData(value));
    if (m_toggle != nullptr)
        m_toggle->setChecked(value == toggleValue(true));
    if (m_choices != nullptr) {
        if (QAbstractButton* button = m_choices->button(value)) {
            button->setChecked(true);
        } else if (QAbstractButton* checked = m_choices->checkedButton()) {
            // No choice has the value: none shows as chosen.
            m_choices->setExclusive(false);
            checked->setChecked(false);
            m_choices->setExclusive(true);
        }
    }
}

void SettingOpt::setCardText(const QString& text) {
    if (m_text != nullptr)
        m_text->setText(text);
}

void SettingOpt::setChangeable(bool changeable) {
    m_control->setEnabled(m_record.enable && changeable);
}
