#include "PreviewPrint.h"

#include "ReportPage.h"

#include <QPainter>

PreviewPrint::PreviewPrint(QWidget* parent) : QWidget(parent) {}

void PreviewPrint::setSceneData(const ReportScene& scene) {
    m_scene = scene;
    update();
}

void PreviewPrint::setMapData(const QImage& map) {
    m_scene.mapImage = map;
    update();
}

void PreviewPrint::setMemo(const QString& memo) {
    m_memo = memo;
    update();
}

void PreviewPrint::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::TextAntialiasing);
    const QSize page(ReportPage::kPreviewWidth, ReportPage::kPreviewHeight);
    const QSize shown = page.scaled(size() - QSize(8, 8), Qt::KeepAspectRatio);
    const double scale = double(shown.width()) / page.width();
    const QPoint corner((width() - shown.width()) / 2, (height() - shown.height()) / 2);
    painter.fillRect(QRect(corner, shown), Qt::white);
    painter.translate(corner);
    painter.scale(scale, scale);
    ReportPage::paint(painter, page, m_scene, m_memo);
}
