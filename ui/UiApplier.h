#pragma once

#include "UiItem.h"

#include <QString>

class QWidget;

// The one rule every view follows when it places a child from its description record, so
// that no view repeats it.
class UiApplier {
public:
    // Hides and disables the widget when its record is absent or not enabled and returns
    // false. Otherwise names it, places and sizes it, shows or hides it, sets its margins,
    // font and style sheet (an empty sheet leaves the widget's own), and returns true.
    static bool apply(QWidget* widget, const QString& entryName, const UiItem& item,
                      const QString& styleSheet);

    // Background panel: the Default image stretched over the widget on the Default colour.
    static QString panelStyleSheet(const UiItem& item, const QString& imageFolder,
                                   const QString& selector = QStringLiteral("QWidget"));

    // One rule per state: Default, then ":hover", ":checked" and ":pressed" (Select) and
    // ":disabled". A state without its own image or colour falls back to Default.
    static QString buttonStyleSheet(const UiItem& item, const QString& imageFolder,
                                    const QString& selector = QStringLiteral("QPushButton"));

    // Plain text: Default text colour and background, no image.
    static QString labelStyleSheet(const UiItem& item,
                                   const QString& selector = QStringLiteral("QLabel"));

    // A field the user types into (or a bar that fills): Default background and text colour,
    // a thin Default border that takes the Select colour while the field has the focus, and
    // the Select colour for selected text and for the filled part of a progress bar.
    static QString fieldStyleSheet(const UiItem& item,
                                   const QString& selector = QStringLiteral("QLineEdit"));

    // A check box or radio button: its text as a label, an outlined indicator (round for a
    // radio button) that shows the Select image when checked.
    static QString choiceStyleSheet(const UiItem& item, const QString& imageFolder,
                                    const QString& selector = QStringLiteral("QCheckBox"));
};
