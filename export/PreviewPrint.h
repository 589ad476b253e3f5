#pragma once

#include "ReportScene.h"

#include <QWidget>

// The report's page as it will print, scaled into the widget.
class PreviewPrint : public QWidget {
    Q_OBJECT
public:
    explicit PreviewPrint(QWidget* parent = nullptr);

    void setSceneData(const ReportScene& scene);
    void setMapData(const QImage& map);
    void setMemo(const QString& memo);

    const ReportScene& scene() const { return m_scene; }
    const QString& memo() const { return m_memo; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ReportScene m_scene;
    QString m_memo;
};
