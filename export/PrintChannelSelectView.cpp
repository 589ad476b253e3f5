#include "PrintChannelSelectView.h"

#include "PlaybackState.h"
#include "PrintView.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "TavWidget.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

PrintChannelSelectView::PrintChannelSelectView(QWidget* parent)
    : TavDialog("PrintChannelSelectView", parent) {
    logInfo("[PrintChannelSelectView]: Enter PrintChannelSelectView class.");
    TavWidget* view = form();
    view->addChild(new QLabel(view), "context", TavWidget::Style::Label);
    m_channels =
        std::make_unique<ChannelChoices>(view, view, PlaybackState::playChannelCount,
                                         [](QWidget* parent) { return new QRadioButton(parent); });
    // The front camera is the usual choice.
    if (m_channels->count() > 0)
        m_channels->item(0)->setChecked(true);

    auto* ok = new QPushButton(view);
    auto* cancel = new QPushButton(view);
    view->addChild(ok, "bOk", TavWidget::Style::Button);
    view->addChild(cancel, "bCancel", TavWidget::Style::Button);
    ok->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ok, &QPushButton::clicked, this, &PrintChannelSelectView::onShowPrintView);
    view->retranslate();
}

PrintChannelSelectView::~PrintChannelSelectView() = default;

void PrintChannelSelectView::setImage(int channel, const QImage& image) {
    m_channels->setImage(channel, image);
}

void PrintChannelSelectView::onShowPrintView() {
    logDebug("PrintChannelSelectView::onShowPrintView");
    const QList<int> chosen = m_channels->checked();
    if (chosen.isEmpty()) {
        TavPrompt::inform(this, tr("There is not selected channel!"));
        return;
    }
    if (m_printView == nullptr) {
        m_printView = new PrintView(this);
        connect(m_printView, &QDialog::finished, this, &PrintChannelSelectView::onFinishPrintView);
    }
    ReportScene scene = m_scene;
    scene.sceneImage = m_channels->image(chosen.first());
    m_printView->setScene(scene);
    m_printView->move(geometry().center() - m_printView->rect().center());
    m_printView->open();
}

void PrintChannelSelectView::onFinishPrintView(int result) {
    logDebug("PrintChannelSelectView::onFinishPrintView");
    emit finishedPrintView(result);
    done(result);
}
