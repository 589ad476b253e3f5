#include "LengthProgressBar.h"

#include "UiApplier.h"
#include "UiItem.h"

#include <QHeaderView>
#include <QTimer>

#include <utility>

namespace {

constexpr int kProgressDelayMs = 300;

} // namespace

LengthProgressBar::LengthProgressBar(QHeaderView* header, std::function<bool()> reading)
    : QProgressBar(header), m_header(header), m_delay(new QTimer(this)) {
    m_delay->setSingleShot(true);
    m_delay->setInterval(kProgressDelayMs);
    connect(m_delay, &QTimer::timeout, this,
            [this, reading = std::move(reading)] { showStrip(reading()); });
}

void LengthProgressBar::applyLook(const QString& name, const UiItem& look,
                                  const QString& styleSheet) {
    UiApplier::apply(this, name, look, styleSheet);
    hide();
    m_header->setFont(look.font);
}

void LengthProgressBar::begin(int total) {
    setRange(0, total);
    setValue(0);
    m_delay->start();
}

void LengthProgressBar::showStrip(bool show) {
    const bool shown = show && isEnabled();
    m_header->setVisible(shown);
    setVisible(shown);
    fitStrip();
}

void LengthProgressBar::fitStrip() {
    setGeometry(m_header->rect());
}
