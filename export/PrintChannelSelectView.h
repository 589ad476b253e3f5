#pragma once

#include "ChannelChoices.h"
#include "ReportScene.h"
#include "TavDialog.h"

#include <QImage>

#include <memory>

class PrintView;

// The first step of printing: which camera's picture goes into the report. Then the report
// dialog opens over it; when that closes, this one closes with the same result.
class PrintChannelSelectView : public TavDialog {
    Q_OBJECT
public:
    // Offers the cameras of the playing recording as it is now.
    explicit PrintChannelSelectView(QWidget* parent = nullptr);
    ~PrintChannelSelectView() override;

    // A camera's current picture.
    void setImage(int channel, const QImage& image);
    // Everything else the report shows (the map, the values at the current time).
    void setScene(const ReportScene& scene) { m_scene = scene; }

    // The report dialog while it is open.
    PrintView* printView() const { return m_printView; }

signals:
    void finishedPrintView(int result);

public slots:
    void onShowPrintView();
    void onFinishPrintView(int result);

private:
    std::unique_ptr<ChannelChoices> m_channels;
    ReportScene m_scene;
    PrintView* m_printView = nullptr;
};
