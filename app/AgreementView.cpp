#include "AgreementView.h"

#include "AppGlobals.h"
#include "StatusLog.h"
#include "UiApplier.h"
#include "UiDescription.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

AgreementView::AgreementView(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), m_central(new QWidget(this)),
      m_title(new QLabel(m_central)), m_context(new QLabel(m_central)),
      m_updateChecks(new QCheckBox(m_central)), m_crashReports(new QCheckBox(m_central)),
      m_agree(new QPushButton(m_central)), m_disagree(new QPushButton(m_central)) {
    logInfo("[AgreementView]: Enter AgreementView class.");
    UiDescription ui;
    ui.open(QStringLiteral("AgreementView"));
    const QString images = ui.imageFolder();

    const UiItem central = ui.item("centralWidget");
    UiApplier::apply(m_central, "centralWidget", central,
                     UiApplier::panelStyleSheet(central, images));
    if (central.size.isValid())
        setFixedSize(central.size);
    // Asked before the main window exists: centre on the screen, not on a hidden parent.
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->geometry().center() - rect().center());
    for (auto [label, name] : {std::pair{m_title, "DlgName"}, std::pair{m_context, "context"}}) {
        const UiItem item = ui.item(name);
        UiApplier::apply(label, name, item, UiApplier::labelStyleSheet(item));
    }
    m_context->setWordWrap(true);
    m_context->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    for (auto [box, name] :
         {std::pair{m_updateChecks, "chkUpdate"}, std::pair{m_crashReports, "chkReport"}}) {
        const UiItem item = ui.item(name);
        // The indicator is drawn from the description too: an outlined box, and the
        // entry's Select image when checked.
        const QString indicator =
            QStringLiteral("QCheckBox::indicator{width: 16px; height: 16px; border: 1px solid "
                           "#8a93a3; border-radius: 3px; background: transparent;} "
                           "QCheckBox::indicator:checked{border: none; image: url(\"%1%2\");}")
                .arg(images, item.image[UiItem::Select]);
        UiApplier::apply(box, name, item,
                         UiApplier::labelStyleSheet(item, "QCheckBox") + ' ' + indicator);
    }
    m_updateChecks->setChecked(true);
    for (auto [button, name] : {std::pair{m_agree, "bAgree"}, std::pair{m_disagree, "bDisagree"}}) {
        const UiItem item = ui.item(name);
        UiApplier::apply(button, name, item, UiApplier::buttonStyleSheet(item, images));
        button->setCursor(Qt::PointingHandCursor);
    }
    m_agree->setDefault(true);

    connect(m_agree, &QPushButton::clicked, this, &AgreementView::onClickAgree);
    connect(m_disagree, &QPushButton::clicked, this, &QDialog::reject);
    onChangeTextByLanguage();
}

void AgreementView::onClickAgree() {
    logDebug("AgreementView::onClickAgree");
    AppGlobals::storeAgreement(m_updateChecks->isChecked(), m_crashReports->isChecked());
    done(1);
}

void AgreementView::onChangeTextByLanguage() {
    UiDescription ui;
    ui.open(QStringLiteral("AgreementView"));
    m_title->setText(ui.translatedText("DlgName"));
    // The dialog has no frame of its own; the title still names its window for the desktop.
    setWindowTitle(m_title->text());
    m_context->setText(ui.translatedText("context"));
    m_updateChecks->setText(ui.translatedText("chkUpdate"));
    m_crashReports->setText(ui.translatedText("chkReport"));
    m_agree->setText(ui.translatedText("bAgree"));
    m_disagree->setText(ui.translatedText("bDisagree"));
}
