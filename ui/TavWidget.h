#pragma once

#include "UiDescription.h"
#include "UiItem.h"
#include "UiLayout.h"

#include <QHash>
#include <QPointer>
#include <QString>
#include <QWidget>

// Base of the views built from a description file. A view makes its children with
// addChild(); the base applies each child's record (placement, visibility, style), keeps
// the children in place when the view is resized, and re-reads their texts on
// retranslate(), so that no view repeats that code.
class TavWidget : public QWidget {
    Q_OBJECT
public:
    // Field: a line edit, text box or progress bar; Choice: a check box or radio button.
    enum class Style { Panel, Button, Label, Field, Choice, None };

    TavWidget(const QString& viewName, QWidget* parent = nullptr);

    const QString& viewName() const { return m_viewName; }

    // Applies the record of entry `name` to `child` (made by the caller, parented to this
    // view or one of its children) and remembers it. Returns whether the child is enabled
    // in the description.
    bool addChild(QWidget* child, const QString& name, Style style);

    // The view places this child itself from now on (for example a child that can move to
    // another view).
    void placeItself(QWidget* child) { m_layout.remove(child); }

    // Whether the description enables a child; views skip wiring for those it does not.
    bool isEnabledChild(const QString& name) const;

    // The description's own size for this view (entry "centralWidget"), or an invalid size.
    QSize designSize() const { return m_layout.designSize(); }

public slots:
    // Re-reads the texts of every text-bearing child through the view's translation.
    virtual void retranslate();

protected:
    void resizeEvent(QResizeEvent* event) override;

    // Opened once per set-up; views may read further entries from it.
    const UiDescription& description() const;

private:
    QString m_viewName;
    UiLayout m_layout;
    QHash<QString, QPointer<QWidget>> m_children;
    QHash<QString, bool> m_enabled;
    UiDescription m_description;
};
