#pragma once

#include <QMainWindow>

class QWidget;

// The one top-level window. It checks the privacy agreement before anything is shown,
// builds its children from the "MainWindow" description, wires the views to each other,
// and at the end saves the settings and cleans the data folder.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    static constexpr int kInitialWidth = 1366;
    static constexpr int kInitialHeight = 768;

    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // Whether a stored "agreement" value lets the program run; sets the update-check and
    // crash-report flags from it. Empty and unknown values do not.
    static bool acceptAgreementValue(const QString& value);

public slots:
    void onAgreeDlgFinished(int result);
    void onSetNotSaveSetting();
    void onUpdateMonitorSize(bool update = true);

private:
    void checkAgreement();
    void setupUi();
    void saveSettings();
    void removeDataFolderLeftovers();

    QWidget* m_centralWidget = nullptr;
    bool m_agreementAccepted = false;
    bool m_saveSettings = true;
    QSize m_screenSize;
    QRect m_availableGeometry;
};
