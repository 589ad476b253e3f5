#pragma once

#include <QProgressBar>

#include <functional>

class QHeaderView;
struct UiItem;

// How far the reading of the listed recordings' lengths got, on the list's header strip,
// which shows only while it does. A reading that ends sooner than a moment never shows it,
// so short loads do not flicker.
class LengthProgressBar : public QProgressBar {
    Q_OBJECT
public:
    // reading() tells whether the lengths are still being read when the moment is up.
    LengthProgressBar(QHeaderView* header, std::function<bool()> reading);

    // The description's look for the bar; its font gives the strip its height.
    void applyLook(const QString& name, const UiItem& look, const QString& styleSheet);
    // A reading of total lengths starts.
    void begin(int total);
    // Shows the bar and its strip, or hides both.
    void showStrip(bool show);
    // Fills the strip again (the table laid itself out).
    void fitStrip();

private:
    QHeaderView* m_header;
    QTimer* m_delay;
};
