#pragma once

#include "ReportScene.h"

#include "TavDialog.h"

class PreviewPrint;
class QPlainTextEdit;
class QPrinter;
class QPushButton;

// The report dialog: the page as it will print, a memo to add to it, and Print (through the
// system's print dialog) or Save as PDF.
class PrintView : public TavDialog {
    Q_OBJECT
public:
    explicit PrintView(QWidget* parent = nullptr);

    // The scene to report; its camera picture counts as the chosen channel.
    void setScene(const ReportScene& scene);
    // Number of chosen channels; with none the page stays empty.
    int chosenCount() const { return m_chosen; }
    PreviewPrint* preview() const { return m_preview; }
    QPlainTextEdit* memoEditor() const { return m_memo; }

    // Paints the report on a printer that is ready (page size and resolution set).
    void printTo(QPrinter* printer) const;
    // Writes the report as a PDF file; an existing file is replaced only once the new one
    // is complete. Returns false and says why in error.
    bool savePdf(const QString& path, QString* error) const;

public slots:
    void onPrint();
    void onSavePdf();

private:
    PreviewPrint* m_preview;
    QPlainTextEdit* m_memo;
    int m_chosen = 0;
};
