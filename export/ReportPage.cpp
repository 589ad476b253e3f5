#include "ReportPage.h"

#include "ReportScene.h"

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
    const int gap = std::max(4, height / 100);
    painter.save();
    painter.setPen(Qt::black);

    QFont title = painter.font();
    title.setPixelSize(kTitlePixels);
    title.setBold(true);
    painter.setFont(title);
    const int titleHeight = kTitlePixels * 2;
    painter.drawText(QRect(0, margin, width, titleHeight), Qt::AlignHCenter | Qt::AlignTop,
                     tr("Report"));

    // The text block keeps its room at the foot of the page; the pictures share the rest, the
    // camera's at most about two fifths of the page.
    const QStringList textLines = lines(scene, memo);
    const int textHeight = textLines.size() * kLineStep;
    int y = margin + titleHeight + gap;
    const int pictureRoom = height - margin - textHeight - gap - y;
    const QRect sceneRect =
        fitted(scene.sceneImage, margin, y, contentWidth, std::min(pictureRoom, height * 2 / 5));
    if (sceneRect.isValid()) {
        painter.drawImage(sceneRect, scene.sceneImage);
        y = sceneRect.bottom() + 1 + gap;
    }
    // The map follows the car, which is at its centre: a map taller than wide (the side
    // panel's) gives the square around the car.
    QImage map = scene.mapImage;
    if (map.height() > map.width())
        map = map.copy(0, (map.height() - map.width()) / 2, map.width(), map.width());
    const QRect mapRect =
        fitted(map, margin, y, contentWidth, height - margin - textHeight - gap - y);
    if (mapRect.isValid()) {
        painter.drawImage(mapRect, map);
        y = mapRect.bottom() + 1 + gap;
    }

    QFont body = painter.font();
    body.setPixelSize(kTextPixels);
    body.setBold(false);
    painter.setFont(body);
    for (int i = 0; i < textLines.size(); ++i)
        painter.drawText(QRect(margin, y + i * kLineStep, contentWidth, kLineStep),
                         Qt::AlignLeft | Qt::AlignTop, textLines.at(i));
    painter.restore();
}
