#include "PrintView.h"

#include "PreviewPrint.h"
#include "ReportPage.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "TavWidget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStandardPaths>

PrintView::PrintView(QWidget* parent)
    : TavDialog("PrintView", parent), m_preview(new PreviewPrint(form())),
      m_memo(new QPlainTextEdit(form())) {
    logInfo("[PrintView]: Enter PrintView class.");
    using Style = TavWidget::Style;
    TavWidget* view = form();
    view->addChild(m_preview, "preview", Style::Panel);
    view->addChild(new QLabel(view), "strMemo", Style::Label);
    view->addChild(m_memo, "editMemo", Style::Field);
    auto* hint = new QLabel(view);
    view->addChild(hint, "strHint", Style::Label);
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* print = new QPushButton(view);
    auto* pdf = new QPushButton(view);
    auto* cancel = new QPushButton(view);
    view->addChild(print, "bPrint", Style::Button);
    view->addChild(pdf, "bSavePdf", Style::Button);
    view->addChild(cancel, "bCancel", Style::Button);
    print->setDefault(true);
    // Tab moves on to the buttons rather than into the memo, which prints as one line.
    m_memo->setTabChangesFocus(true);

    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(print, &QPushButton::clicked, this, &PrintView::onPrint);
    connect(pdf, &QPushButton::clicked, this, &PrintView::onSavePdf);
    connect(m_memo, &QPlainTextEdit::textChanged, this,
            [this] { m_preview->setMemo(m_memo->toPlainText().simplified()); });
    view->retranslate();
}

void PrintView::setScene(const ReportScene& scene) {
    m_chosen = scene.sceneImage.isNull() ? 0 : 1;
    m_preview->setSceneData(scene);
}

void PrintView::printTo(QPrinter* printer) const {
    printer->setFullPage(true);
    QPainter painter;
    if (!painter.begin(printer))
        return;
    const QSize page(printer->width(), printer->height());
    if (m_chosen > 0) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        ReportPage::paint(painter, page, m_preview->scene(), m_preview->memo());
    }
    painter.end();
}

void PrintView::onPrint() {
    logDebug("PrintView::onPrint");
    QPrinter printer(QPrinter::ScreenResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    printTo(&printer);
}

bool PrintView::savePdf(const QString& path, QString* error) const {
    const auto fail = [error](const QString& why) {
        if (error != nullptr)
            *error = why;
        return false;
    };
    // The page is written beside its place and put there once it is complete.
    const QString partial = path + QStringLiteral(".part");
    {
        QPrinter printer(QPrinter::ScreenResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setOutputFileName(partial);
        printTo(&printer);
    }
    if (QFileInfo(partial).size() <= 0) {
        QFile::remove(partial);
        return fail(tr("The file cannot be written there."));
    }
    if (QFileInfo::exists(path) && !QFile::remove(path)) {
        QFile::remove(partial);
        return fail(tr("The file there cannot be replaced."));
    }
    if (!QFile::rename(partial, path)) {
        QFile::remove(partial);
        return fail(tr("The file cannot be written there."));
    }
    return true;
}

void PrintView::onSavePdf() {
    logDebug("PrintView::onSavePdf");
    // The folder of the last report saved, else the documents folder when there is one.
    static QString lastFolder;
    QString folder = lastFolder;
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QFileInfo(folder).isDir())
        folder = QDir::homePath();
    const QString base = QFileInfo(m_preview->scene().fileName).completeBaseName();
    const QString suggested =
        folder + '/' +
        (base.isEmpty() ? QStringLiteral("report") : base + QStringLiteral("_report")) +
        QStringLiteral(".pdf");
    QString path = TavPrompt::saveFile(this, tr("Save as PDF"), suggested, tr("PDF (*.pdf)"));
    if (path.isEmpty())
        return;
    if (!path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        path += QStringLiteral(".pdf");
    QString error;
    if (!savePdf(path, &error)) {
        logWarning("[PrintView]: %s not written: %s", path.toLocal8Bit().constData(),
                   error.toLocal8Bit().constData());
        TavPrompt::inform(this, tr("The report was not saved:") + '\n' +
                                    QDir::toNativeSeparators(path) + '\n' + error);
        return;
    }
    lastFolder = QFileInfo(path).absolutePath();
    TavPrompt::inform(this, tr("The report is saved:") + '\n' + QDir::toNativeSeparators(path));
}
