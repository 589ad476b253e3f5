#include "WaitPlayLogo.h"

#include <QLabel>

WaitPlayLogo::WaitPlayLogo(QWidget* parent)
    : TavWidget("WaitPlayLogo", parent), m_logo(new QLabel(this)), m_hint(new QLabel(this)) {
    addChild(m_logo, "logo", Style::Panel);
    addChild(m_hint, "hint", Style::Label);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    retranslate();
}
