#include "ReportPage.h"

#include "ReportScene.h"

#include <QColor>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace {

// Where an image goes: as wide as `width` at most and `maxHeight` high at most, its
// proportions kept, centred in the width.
QRect fitted(const QImage& image, int left, int top, int width, int maxHeight) {
    if (image.isNull() || width <= 0 || maxHeight <= 0)
        return QRect();
    const QSize size = image.size().scaled(width, maxHeight, Qt::KeepAspectRatio);
    return QRect(left + (width - size.width()) / 2, top, size.width(), size.height());
}

} // namespace

QStringList ReportPage::lines(const ReportScene& scene, const QString& memo) {
    const QString unit = scene.speedUnit == 2 ? QStringLiteral("Mi/h") : QStringLiteral("Km/h");
    return {tr("FileName: ") + scene.fileName,
            tr("Date: ") + scene.date,
            tr("Model Name: ") + scene.modelName,
            tr("GPS:") + scene.latitude + " (N)," + scene.longitude + " (E),",
            tr("Speed: ") + scene.speed + ' ' + unit,
            tr("G-Senor: X:") + scene.gSensorX + " Y:" + scene.gSensorY + " Z:" + scene.gSensorZ,
            tr("Memo: ") + memo};
}

void ReportPage::paint(QPainter& painter, const QSize& page, const ReportScene& scene,
                       const QString& memo) {
    const int width = page.width();
    const int height = page.height();
    const int margin = std::max(8, width * 6 / 100);
    const int contentWidth = width - 2 * margin;
    const int bottom = height - margin;
    const int gap = std::max(4, height / 100);
    // Sizes follow the page, so that the sheet reads the same on the screen, in a PDF and on
    // a printer of any resolution: the text about 10 pt on A4, the title about 18 pt.
    const int textPixels = std::max(kTextPixels, height / 80);
    const int titlePixels = std::max(kTitlePixels, height / 45);
    const int lineStep = std::max(kLineStep, textPixels * 17 / 10);
    painter.save();
    painter.setPen(Qt::black);

    QFont title = painter.font();
    title.setPixelSize(titlePixels);
    title.setBold(true);
    painter.setFont(title);
    const int titleHeight = titlePixels * 2;
    painter.drawText(QRect(0, margin, width, titleHeight), Qt::AlignHCenter | Qt::AlignTop,
                     tr("Report"));

    // The camera's picture across the page; under it the map on the left and the text on the
    // right, both down to the foot of the page.
    int y = margin + titleHeight + gap;
    const QRect sceneRect =
        fitted(scene.sceneImage, margin, y, contentWidth, height * 2 / 5);
    if (sceneRect.isValid()) {
        painter.drawImage(sceneRect, scene.sceneImage);
        y = sceneRect.bottom() + 1 + 2 * gap;
    }
    int textLeft = margin;
    if (!scene.mapImage.isNull() && bottom > y) {
        // The map follows the car at its centre: the middle of it, in the box's proportions.
        const QRect box(margin, y, contentWidth / 2, bottom - y);
        const QImage& map = scene.mapImage;
        QSize crop = box.size().scaled(map.size(), Qt::KeepAspectRatio);
        const QRect source((map.width() - crop.width()) / 2, (map.height() - crop.height()) / 2,
                           crop.width(), crop.height());
        painter.drawImage(box, map, source);
        painter.setPen(QColor(0xc8, 0xcc, 0xd4));
        painter.drawRect(box.adjusted(0, 0, -1, -1));
        painter.setPen(Qt::black);
        textLeft = box.right() + 1 + 2 * gap;
    }
    const int textWidth = margin + contentWidth - textLeft;

    QFont body = painter.font();
    body.setPixelSize(textPixels);
    body.setBold(false);
    painter.setFont(body);
    const QStringList textLines = lines(scene, memo);
    for (int i = 0; i < textLines.size(); ++i)
        painter.drawText(QRect(textLeft, y + i * lineStep, textWidth, lineStep),
                         Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, textLines.at(i));
    // Room for notes by hand under the memo, ruled to the foot of the page.
    painter.setPen(QColor(0xc8, 0xcc, 0xd4));
    for (int ruled = y + (textLines.size() + 1) * lineStep; ruled + lineStep <= bottom;
         ruled += lineStep)
        painter.drawLine(textLeft, ruled, textLeft + textWidth, ruled);
    painter.restore();
}
