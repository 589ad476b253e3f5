#pragma once

#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QStringList>

class QPainter;
struct ReportScene;

// The layout of the one-page report, painted the same way on the preview and on the
// printer: the title, the camera's picture across the page, under it the map beside the text
// lines and the ruled room for a memo.
class ReportPage {
    Q_DECLARE_TR_FUNCTIONS(ReportPage)

public:
    // A4 at screen resolution, the page the preview shows.
    static constexpr int kPreviewWidth = 794;
    static constexpr int kPreviewHeight = 1123;
    // The smallest sizes; on a page they grow with its height.
    static constexpr int kTitlePixels = 12;
    static constexpr int kTextPixels = 8;
    static constexpr int kLineStep = 20;

    // Paints on a device of `page` pixels, from its top-left corner.
    static void paint(QPainter& painter, const QSize& page, const ReportScene& scene,
                      const QString& memo);

    // The text lines, in their order, with their labels.
    static QStringList lines(const ReportScene& scene, const QString& memo);
};
