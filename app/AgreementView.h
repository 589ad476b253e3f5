#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;

// Asked once, before the first start: the user agrees to the privacy terms and chooses
// whether the program may check for updates and send crash reports. Accepting stores the
// choice as the "agreement" setting (1, plus 2 for update checks, plus 4 for crash
// reports) and ends with result 1; declining stores nothing, so the question comes again.
class AgreementView : public QDialog {
    Q_OBJECT
public:
    explicit AgreementView(QWidget* parent = nullptr);

public slots:
    void onClickAgree();
    void onChangeTextByLanguage();

private:
    QWidget* m_central;
    QLabel* m_title;
    QLabel* m_context;
    QCheckBox* m_updateChecks;
    QCheckBox* m_crashReports;
    QPushButton* m_agree;
    QPushButton* m_disagree;
};
