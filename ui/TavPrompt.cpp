#include "TavPrompt.h"

#include "UiDescription.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFontMetrics>
#include <QMessageBox>
#include <QStyle>

#include <algorithm>

std::function<void(const QString&)> TavPrompt::informHook;
std::function<bool(const QString&)> TavPrompt::askHook;
std::function<bool(const QString&, const QString&)> TavPrompt::askTitledHook;
std::function<QStringList()> TavPrompt::openFilesHook;
std::function<QString(const QString&)> TavPrompt::openFolderHook;
std::function<QString(const QString&)> TavPrompt::saveFileHook;

namespace {

// A state's colour, or the Default one where the description leaves the state out.
QString stateColour(const UiItem::StateStrings& states, UiItem::State state) {
    const QString& value = states[state];
    return value.isEmpty() || value == QLatin1String("none") ? states[UiItem::Default] : value;
}

// A box's window with its text and buttons, and whatever a file dialog adds (lists, fields,
// tool buttons), all in the colours of the description's three entries.
QString composeStyleSheet(const UiDescription& ui) {
    const UiItem box = ui.item(QStringLiteral("box"));
    const UiItem button = ui.item(QStringLiteral("button"));
    const UiItem field = ui.item(QStringLiteral("field"));
    if (!box.usable())
        return QString();
    const QString font = QStringLiteral("font-family: \"%1\"; font-size: %2px;")
                             .arg(box.font.family())
                             .arg(box.font.pixelSize() > 0 ? box.font.pixelSize() : 13);
    // The sheet is set on each dialog, so plain type selectors reach only its own children.
    QString sheet = QStringLiteral("QDialog{background: %1; border: 1px solid %2;} "
                                   "QLabel, QCheckBox{color: %3; background: "
                                   "transparent; %4} ")
                        .arg(box.color[UiItem::Default], box.border[UiItem::Default],
                             box.textColor[UiItem::Default], font);
    if (button.usable()) {
        // The default button (the one Enter presses) is outlined in the Normal border.
        const std::pair<const char*, UiItem::State> states[] = {{"", UiItem::Default},
                                                                {":default", UiItem::Normal},
                                                                {":hover", UiItem::Hover},
                                                                {":pressed", UiItem::Select},
                                                                {":disabled", UiItem::Disable}};
        for (const auto& [pseudo, state] : states) {
            sheet +=
                QStringLiteral("QPushButton%1{background: %2; color: %3; border: "
                               "1px solid %4;")
                    .arg(QLatin1String(pseudo), stateColour(button.color, state),
                         stateColour(button.textColor, state), stateColour(button.border, state));
            if (state == UiItem::Default)
                sheet += QStringLiteral(" border-radius: 4px; padding: 5px 18px; min-width: "
                                        "64px; %1")
                             .arg(font);
            sheet += QStringLiteral("} ");
        }
        sheet += QStringLiteral("QToolButton{background: transparent; border: none; "
                                "padding: 3px;} QToolButton:hover{background: %1;} ")
                     .arg(stateColour(button.color, UiItem::Hover));
    }
    if (field.usable()) {
        sheet += QStringLiteral("QLineEdit, QComboBox, QListView, "
                                "QTreeView{background: %1; color: %2; border: 1px solid %3; "
                                "selection-background-color: %4; selection-color: %5; %6} "
                                "QHeaderView::section{background: %1; color: %2; border: none; "
                                "padding: 3px;} "
                                "QComboBox QAbstractItemView{background: %1; color: %2;} ")
                     .arg(field.color[UiItem::Default], field.textColor[UiItem::Default],
                          field.border[UiItem::Default], stateColour(field.color, UiItem::Select),
                          stateColour(field.textColor, UiItem::Select), font);
    }
    return sheet;
}

// Gives a dialog the program's sheet. Under a parent that has a sheet of its own, Qt keeps the
// look the dialog's children were given when they were made; they are polished again so
// that the new sheet reaches them.
// The platform's pictures on the dialog buttons are drawn for light boxes; they go too.
void dress(QWidget& dialog) {
    dialog.setStyleSheet(TavPrompt::styleSheet());
    for (QWidget* child : dialog.findChildren<QWidget*>()) {
        child->style()->unpolish(child);
        child->style()->polish(child);
    }
    for (QDialogButtonBox* buttons : dialog.findChildren<QDialogButtonBox*>()) {
        for (QAbstractButton* button : buttons->buttons())
            button->setIcon(QIcon());
    }
}

// The text with its lines broken so that none is wider than width: at spaces, else after a
// path's separators (a long path has no spaces).
QString wrapped(const QString& text, const QFontMetrics& metrics, int width) {
    QStringList lines;
    for (const QString& line : text.split('\n')) {
        QString rest = line;
        while (metrics.horizontalAdvance(rest) > width) {
            int cut = -1;
            for (int i = 1; i < rest.size(); ++i) {
                if (metrics.horizontalAdvance(rest.left(i)) > width)
                    break;
                const QChar c = rest.at(i - 1);
                if (c == ' ' || c == '/' || c == '\\' || c == '_' || c == '-')
                    cut = i;
            }
            if (cut <= 0)
                break;
            lines << rest.left(cut).trimmed();
            rest = rest.mid(cut);
        }
        lines << rest;
    }
    return lines.join('\n');
}

// A box that a dialog opens stays within that dialog's width and below its title strip, so
// that the user still sees which dialog asks; over the main window it is centred as usual.
void place(QMessageBox& box, QWidget* parent) {
    QWidget* window = parent != nullptr ? parent->window() : nullptr;
    if (qobject_cast<QDialog*>(window) == nullptr || !window->isVisible())
        return;
    const QRect frame = window->frameGeometry();
    constexpr int kTitleStrip = 40;
    constexpr int kMargins = 80; // the box's own margins around its text
    const QString text = box.text();
    box.setText(wrapped(text, QFontMetrics(box.font()), std::max(160, frame.width() - kMargins)));
    box.adjustSize();
    const QSize size = box.sizeHint();
    box.move(frame.center().x() - size.width() / 2, frame.top() + kTitleStrip);
}

} // namespace

QString TavPrompt::styleSheet() {
    UiDescription ui;
    ui.open(QStringLiteral("TavPrompt"));
    return composeStyleSheet(ui);
}

void TavPrompt::inform(QWidget* parent, const QString& text) {
    if (informHook) {
        informHook(text);
        return;
    }
    QMessageBox box(QMessageBox::NoIcon, QString(), text, QMessageBox::Ok, parent);
    box.setObjectName(QStringLiteral("tavMessage"));
    dress(box);
    place(box, parent);
    box.exec();
}

bool TavPrompt::ask(QWidget* parent, const QString& text) {
    return ask(parent, QCoreApplication::translate("TavPrompt", "Warning"), text);
}

bool TavPrompt::ask(QWidget* parent, const QString& title, const QString& text) {
    if (askTitledHook)
        return askTitledHook(title, text);
    if (askHook)
        return askHook(text);
    // No question-mark picture: the platform's is drawn for light boxes.
    QMessageBox box(QMessageBox::NoIcon, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setObjectName(QStringLiteral("tavQuestion"));
    box.setDefaultButton(QMessageBox::No);
    dress(box);
    place(box, parent);
    return box.exec() == QMessageBox::Yes;
}

QStringList TavPrompt::openFiles(QWidget* parent, const QString& caption, const QString& folder,
                                 const QString& filter) {
    if (openFilesHook)
        return openFilesHook();
    // Where the system has its own file dialog it is used as it is; Qt's own takes the sheet.
    QFileDialog dialog(parent, caption, folder, filter);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dress(dialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

QString TavPrompt::openFolder(QWidget* parent, const QString& caption, const QString& start) {
    // Not the program's working folder, which means nothing to the user: the folder chosen
    // before, or else the user's home.
    const QString folder = !start.isEmpty() && QDir(start).exists() ? start : QDir::homePath();
    if (openFolderHook)
        return openFolderHook(folder);
    QFileDialog dialog(parent, caption, folder);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dress(dialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString TavPrompt::saveFile(QWidget* parent, const QString& caption, const QString& path,
                            const QString& filter) {
    if (saveFileHook)
        return saveFileHook(path);
    QFileDialog dialog(parent, caption, path, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dress(dialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
