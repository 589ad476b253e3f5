#include "ChannelChoices.h"

#include "TavWidget.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>

ChannelChoices::ChannelChoices(TavWidget* form, QWidget* parent, int channelCount,
                               const std::function<QAbstractButton*(QWidget*)>& make)
    : m_images(kMaxChannels), m_count(qBound(0, channelCount, int(kMaxChannels))) {
    for (int i = 0; i < kMaxChannels; ++i) {
        const QString number = QString::number(i + 1);
        m_items[i] = make(parent);
        const bool used =
            form->addChild(m_items[i], "item" + number, TavWidget::Style::Choice) && i < m_count;
        m_items[i]->setVisible(used);
        m_items[i]->setEnabled(used);
        if (i < kThumbnails) {
            m_thumbs[i] = new QLabel(parent);
            form->addChild(m_thumbs[i], "thumb" + number, TavWidget::Style::Label);
            m_thumbs[i]->setAlignment(Qt::AlignCenter);
            m_thumbs[i]->setVisible(used && form->isEnabledChild("thumb" + number));
            showThumbnail(i);
        }
    }
}

QList<int> ChannelChoices::checked() const {
    QList<int> channels;
    for (int i = 0; i < m_count; ++i) {
        if (m_items[i]->isEnabled() && m_items[i]->isChecked())
            channels << i;
    }
    return channels;
}

void ChannelChoices::setImage(int channel, const QImage& image) {
    if (channel < 0 || channel >= kMaxChannels)
        return;
    m_images[channel] = image;
    if (channel < kThumbnails)
        showThumbnail(channel);
}

void ChannelChoices::showThumbnail(int channel) {
    QLabel* thumb = m_thumbs[channel];
    const QImage& image = m_images.at(channel);
    if (image.isNull()) {
        thumb->setPixmap(QPixmap());
        thumb->setText(QCoreApplication::translate("ChannelChoices", "No picture"));
        return;
    }
    thumb->setPixmap(QPixmap::fromImage(
        image.scaled(thumb->size() - QSize(2, 2), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}
