#include "TavFileComboBox.h"

#include "RecordingName.h"
#include "StatusLog.h"
#include "UiApplier.h"
#include "UiDescription.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

namespace {

const char* const kComboView = "TavFileComboBox";
const char* const kLetters[] = {"I", "E", "P", "U"};

} // namespace

TavFileComboBox::TavFileComboBox(QWidget* parent)
    : QWidget(parent), m_back(new QWidget(this)), m_text(new QLabel(m_back)),
      m_open(new QPushButton(m_back)) {
    logInfo("[TavFileComboBox]: Enter TavFileComboBox class.");
    UiDescription ui;
    ui.open(QString::fromLatin1(kComboView));
    const QString images = ui.imageFolder();
    const UiItem back = ui.item(QStringLiteral("fileTypeBack"));
    if (UiApplier::apply(
            m_back, QStringLiteral("fileTypeBack"), back,
            UiApplier::buttonStyleSheet(back, images, QStringLiteral("#fileTypeBack")) +
                QStringLiteral(" #fileTypeBack{border-radius: 6px;}")))
        resize(back.x + back.size.width(), back.y + back.size.height());
    // The panel draws its hover look only when it knows the pointer is over it.
    m_back->setAttribute(Qt::WA_Hover);
    m_back->setAttribute(Qt::WA_StyledBackground);
    const UiItem text = ui.item(QStringLiteral("textState"));
    UiApplier::apply(m_text, QStringLiteral("textState"), text, UiApplier::labelStyleSheet(text));
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_text->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (int i = 0; i < 4; ++i) {
        const QString name = QStringLiteral("fileType%1").arg(i + 1);
        m_icons[i] = new QLabel(m_back);
        UiApplier::apply(m_icons[i], name, ui.item(name), QString());
        m_icons[i]->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    const UiItem open = ui.item(QStringLiteral("bOpenList"));
    UiApplier::apply(m_open, QStringLiteral("bOpenList"), open,
                     UiApplier::buttonStyleSheet(open, images));
    m_open->setCheckable(true);
    m_open->setCursor(Qt::PointingHandCursor);
    setCursor(Qt::PointingHandCursor);
    connect(m_open, &QPushButton::clicked, this, &TavFileComboBox::requestList);
    onUpdateSetData(m_mask);
}

void TavFileComboBox::onUpdateSetData(int data) {
    logDebug("TavFileComboBox::onUpdateSetData");
    m_mask = data & 15;
    m_count = 0;
    for (int bit = 1; bit <= 8; bit <<= 1)
        m_count += (m_mask & bit) != 0 ? 1 : 0;
    m_textState = m_count == 4 ? 0 : 1;
    onUpdateList();
}

void TavFileComboBox::onUpdateList() {
    logDebug("TavFileComboBox::onUpdateList");
    onChangeLanguage();
    int shown = 0;
    if (m_textState == 1) {
        for (int i = 0; i < 4; ++i) {
            if ((m_mask & (1 << i)) == 0)
                continue;
            const QString letter = QString::fromLatin1(kLetters[i]);
            QLabel* icon = m_icons[shown++];
            // The letter stays as the label's text for anyone reading it; only the icon shows.
            icon->setText(letter);
            icon->setStyleSheet(QStringLiteral("QLabel{color: transparent; image: url(\"%1\");}")
                                    .arg(RecordingName::typeIconPath(letter)));
            icon->setVisible(icon->isEnabled());
        }
    }
    for (int i = shown; i < 4; ++i) {
        m_icons[i]->clear();
        m_icons[i]->hide();
    }
    emit onSendFileTypeFilter(m_mask);
}

void TavFileComboBox::onUpdateButton() {
    m_open->setChecked(m_listShown);
}

void TavFileComboBox::onUpdateListState(int shown) {
    m_listShown = shown != 0;
    onUpdateButton();
}

void TavFileComboBox::onChangeLanguage() {
    m_text->setText(m_textState == 0 ? tr("  All Type") : tr("  Filter"));
}

void TavFileComboBox::requestList() {
    logDebug("TavFileComboBox::onClickCombBox");
    // Shown at once; the pop-up's own answer (onUpdateListState) has the last word.
    m_listShown = !m_listShown;
    onUpdateButton();
    emit onClickCombBox();
    emit onSendTypeListControl();
}

void TavFileComboBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        requestList();
        return;
    }
    QWidget::mousePressEvent(event);
}
