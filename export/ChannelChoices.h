#pragma once

#include <QImage>
#include <QList>
#include <QVector>

#include <functional>

class QAbstractButton;
class QLabel;
class QWidget;
class TavWidget;

// The cameras a dialog offers, each as a choice ("item1" to "item5") with the picture it
// showed above it ("thumb1" to "thumb3"), laid out by the dialog's description. Only the
// recording's cameras are offered.
class ChannelChoices {
public:
    static constexpr int kMaxChannels = 5;
    static constexpr int kThumbnails = 3;

    // make: the kind of choice (a check box or a radio button) for a parent.
    ChannelChoices(TavWidget* form, QWidget* parent, int channelCount,
                   const std::function<QAbstractButton*(QWidget*)>& make);

    int count() const { return m_count; }
    QAbstractButton* item(int channel) const { return m_items[channel]; }
    // The offered cameras that are chosen (0-based).
    QList<int> checked() const;

    void setImage(int channel, const QImage& image);
    QImage image(int channel) const { return m_images.value(channel); }

private:
    void showThumbnail(int channel);

    QAbstractButton* m_items[kMaxChannels] = {};
    QLabel* m_thumbs[kThumbnails] = {};
    QVector<QImage> m_images;
    int m_count = 0;
};
