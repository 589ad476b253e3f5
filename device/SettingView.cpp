#include "SettingView.h"

#include "AppGlobals.h"
#include "ProgramRestart.h"
#include "SettingOpt.h"
#include "SettingOptCrashReport.h"
#include "SettingOptProgram.h"
#include "SettingOptUpdate.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "TavWidget.h"
#include "UiApplier.h"
#include "UiDescription.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QStackedWidget>
#include <QThread>
#include <QVBoxLayout>

#include <algorithm>

const QStringList SettingView::kProgramResetKeys = {"width",     "height",  "language",
                                                    "volume",    "mute",    "snapshotPath",
                                                    "videoPath", "version", "agreement"};

std::function<void(const QString&, const QStringList&)> SettingView::restartHook;

namespace {

// Long card actions pause twice so that the card reader settles and the dialog shows that
// it is busy before the work starts.
constexpr int kSettleMs = 250;

struct TreeEntry {
    const char* tree;
    const char* button;
    bool (JsonToSetting::*exists)() const;
};

const TreeEntry kTrees[] = {
    {"Camera", "bCamera", &JsonToSetting::isCameraTreeExist},
    {"Battery Protection", "bBattery", &JsonToSetting::isVoltageTreeExist},
    {"Memory", "bMemory", &JsonToSetting::isMemoryTreeExist},
    {"Sensitive", "bSensitive", &JsonToSetting::isSensitiveTreeExist},
    {"System", "bSystem", &JsonToSetting::isSystemTreeExist},
};

QString lineBreak(const QString& first, const QString& second) {
    return first + '\n' + second;
}

} // namespace

SettingView::SettingView(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      m_form(new TavWidget("SettingView", this)) {
    logInfo("[SettingView]: Enter SettingView class.");
    buildFrame();
    loadCard();
    buildTreePages();
    buildViewerPages();
    m_form->retranslate();
    onStateLabelChange();
}

// ---- Building ----

void SettingView::buildFrame() {
    m_form->addChild(m_form, "centralWidget", TavWidget::Style::Panel);
    if (m_form->designSize().isValid())
        setFixedSize(m_form->designSize());
    auto* top = new QWidget(m_form);
    m_form->addChild(top, "topWidget", TavWidget::Style::Panel);
    auto* title = new QLabel(top);
    m_form->addChild(title, "DlgName", TavWidget::Style::Label);
    auto* close = new QPushButton(top);
    m_form->addChild(close, "bClose", TavWidget::Style::Button);
    m_nav = new QWidget(m_form);
    m_form->addChild(m_nav, "navWidget", TavWidget::Style::Panel);
    m_pages = new QStackedWidget(m_form);
    m_form->addChild(m_pages, "pages", TavWidget::Style::Panel);
    m_state = new QLabel(m_form);
    m_form->addChild(m_state, "SettingState", TavWidget::Style::Label);

    const std::pair<const char*, void (SettingView::*)()> actions[] = {
        {"bFormat", &SettingView::onFileFormat},
        {"bDeviceReset", &SettingView::onDeviceSetInit},
        {"bApply", &SettingView::onClickApply},
        {"bOk", &SettingView::onClickOk}};
    for (const auto& [entry, slot] : actions) {
        auto* button = new QPushButton(m_form);
        m_form->addChild(button, entry, TavWidget::Style::Button);
        connect(button, &QPushButton::clicked, this, slot);
    }
    auto* cancel = new QPushButton(m_form);
    m_form->addChild(cancel, "bCancel", TavWidget::Style::Button);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    m_form->retranslate();
    // The dialog has no frame of its own; the title still names its window for the desktop.
    setWindowTitle(title->text());
    if (parent() != nullptr)
        move(parentWidget()->window()->geometry().center() - rect().center());
}

QPushButton* SettingView::addNavButton(const char* entry, QWidget* page) {
    auto* button = new QPushButton(m_nav);
    if (!m_form->addChild(button, entry, TavWidget::Style::Button))
        return button;
    // The buttons stack from the top; a camera without a tree has no gap for it.
    m_navY = std::max(m_navY, button->y());
    button->move(button->x(), m_navY);
    m_navY += button->height() + 4;
    button->setCheckable(true);
    button->setAutoExclusive(true);
    connect(button, &QPushButton::clicked, this, [this, page] { m_pages->setCurrentWidget(page); });
    return button;
}

void SettingView::readDescriptions() {
    // The card reader is given a moment after the card was read.
    QThread::msleep(JsonToSetting::kReadDelayMs);
    m_settings.openFile();
    m_settings.setModel(ConfigAccess::modelText);
    m_trees = m_settings.getItem();
    for (QVector<ShownItem>& group : m_items) {
        for (ShownItem& item : group)
            item.initial = initialValue(item.name);
    }
}

void SettingView::loadCard() {
    m_items.clear();
    if (ConfigAccess::cardRoot.isEmpty() || !QDir(ConfigAccess::cardRoot).exists())
        return;
    // Read again: what an earlier dialog changed and did not write must not show as the
    // card's.
    const qint32 result = m_config.readConfig(QDir(ConfigAccess::cardRoot));
    if (result != ConfigAccess::ReadOk) {
        logError("[SettingView]: the card's configuration could not be read (%d)", result);
        TavPrompt::inform(this, ConfigAccess::readResultText(result));
        return;
    }
    for (const ConfigGroup& group : ConfigAccess::groups) {
        QVector<ShownItem> items;
        for (const ConfigGroup::Item& item : group.items) {
            const int value = static_cast<int>(item.value);
            items.append({item.name, -1, value, value});
        }
        m_items.append(items);
    }
    readDescriptions();
}

void SettingView::buildTreePages() {
    m_navY = 0;
    auto* device = new QLabel(m_nav);
    m_form->addChild(device, "lDevice", TavWidget::Style::Label);
    m_navY = device->geometry().bottom() + 4;
    if (!m_items.isEmpty()) {
        for (const TreeEntry& entry : kTrees) {
            const auto tree =
                std::find_if(m_trees.begin(), m_trees.end(),
                             [&](const SettingTree& t) { return t.name == entry.tree; });
            if (!(m_settings.*entry.exists)() || tree == m_trees.end())
                continue;
            QWidget* page = makeTreePage(*tree);
            m_pages->addWidget(page);
            m_treePages.insert(entry.tree, page);
            QPushButton* button = addNavButton(entry.button, page);
            if (m_treePages.size() == 1)
                button->click();
        }
    }
    if (m_treePages.isEmpty())
        m_pages->addWidget(makeNotePage("deviceTitle", "noCardNote"));
    auto* viewer = new QLabel(m_nav);
    m_form->addChild(viewer, "lViewer", TavWidget::Style::Label);
    viewer->move(viewer->x(), m_navY + 12);
    m_navY = viewer->geometry().bottom() + 4;
    showValues();
    updateChangeable();
}

QWidget* SettingView::makeTreePage(const SettingTree& tree) {
    auto* scroll = new QScrollArea;
    scroll->setObjectName("page_" + tree.name);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setStyleSheet("QScrollArea, QScrollArea > QWidget > QWidget{background: transparent;}");
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 8, 0);
    rows->setSpacing(0);
    UiDescription look;
    look.open("SettingView");
    QLabel* title = SettingOpt::makePageTitle(SettingOpt::translated(tree.name), look, content);
    m_treeTitles.insert(title, tree.name);
    rows->addWidget(title);
    QVector<SettingRecord> settings = tree.settings;
    std::stable_sort(settings.begin(), settings.end(),
                     [](const SettingRecord& a, const SettingRecord& b) { return a.row < b.row; });
    for (const SettingRecord& record : settings) {
        auto* option = new SettingOpt(record, look, content);
        rows->addWidget(option);
        m_options.insert(record.name, option);
        connect(option, &SettingOpt::onSendValueChanged, this, &SettingView::onOptionChanged);
    }
    rows->addStretch(1);
    scroll->setWidget(content);
    return scroll;
}

QWidget* SettingView::makeNotePage(const char* titleEntry, const char* noteEntry) {
    auto* page = new QWidget;
    UiDescription look;
    look.open("SettingView");
    for (const char* entry : {titleEntry, noteEntry}) {
        auto* label = new QLabel(look.translatedText(entry), page);
        UiApplier::apply(label, entry, look.item(entry),
                         UiApplier::labelStyleSheet(look.item(entry)));
        label->setWordWrap(true);
    }
    return page;
}

void SettingView::buildViewerPages() {
    m_program = new SettingOptProgram;
    m_update = new SettingOptUpdate;
    m_crashReport = new SettingOptCrashReport;
    for (QWidget* page : {static_cast<QWidget*>(m_program), static_cast<QWidget*>(m_update),
                          static_cast<QWidget*>(m_crashReport)})
        m_pages->addWidget(page);
    QPushButton* program = addNavButton("bProgram", m_program);
    addNavButton("bUpdate", m_update);
    addNavButton("bCrashReport", m_crashReport);
    if (m_treePages.isEmpty())
        program->click();
    connect(m_program, &SettingOptProgram::onSendProgramReset, this,
            &SettingView::onSetProgramFormat);
    connect(m_program, &SettingOptProgram::onSendChangeLanguage, this,
            &SettingView::onChangeLanguage);
    connect(m_program, &SettingOptProgram::onSendSpeedUnit, this, &SettingView::onSendSpeedUnit);
    connect(m_program, &SettingOptProgram::onSendDriveRules, this, &SettingView::onSendDriveRules);
    connect(m_update, &SettingOptUpdate::onSendShowUpdate, this, &SettingView::onSendShowUpdate);
}

void SettingView::onChangeLanguage() {
    logDebug("SettingView::onChangeLanguage");
    m_form->retranslate();
    setWindowTitle(m_form->findChild<QLabel*>("DlgName")->text());
    for (SettingOpt* option : qAsConst(m_options))
        option->retranslate();
    for (auto it = m_treeTitles.cbegin(); it != m_treeTitles.cend(); ++it)
        it.key()->setText(SettingOpt::translated(it.value()));
    UiDescription look;
    look.open("SettingView");
    for (const char* entry : {"deviceTitle", "noCardNote"}) {
        if (auto* label = m_pages->findChild<QLabel*>(entry))
            label->setText(look.translatedText(entry));
    }
    m_program->retranslate();
    m_update->retranslate();
    m_crashReport->retranslate();
    onStateLabelChange();
    emit onSendChangeLanguage();
}

QString SettingView::cardText(const QString& link) {
    if (link == QLatin1String("Identity"))
        return ConfigAccess::identityText;
    if (link == QLatin1String("Serial"))
        return ConfigAccess::identitySuffix;
    if (link == QLatin1String("Model"))
        return ConfigAccess::modelText;
    if (link == QLatin1String("Version"))
        return ConfigAccess::versionText;
    return QString();
}

void SettingView::showValues() {
    for (SettingOpt* option : qAsConst(m_options)) {
        if (option->record().type == SettingOpt::CardTextKind)
            option->setCardText(cardText(option->record().link));
        else
            option->setValue(shownValue(option->record().name));
    }
}

void SettingView::updateChangeable() {
    // Older "D21" firmware has no battery protection; its settings only show.
    const bool batteryOffered = !ConfigAccess::modelText.contains(QLatin1String("D21")) ||
                                ConfigAccess::specialValue >= ConfigAccess::kSpecialMinimum;
    QStringList battery;
    for (const SettingTree& tree : qAsConst(m_trees)) {
        if (tree.name == QLatin1String("Battery Protection"))
            for (const SettingRecord& record : tree.settings)
                battery << record.name;
    }
    for (SettingOpt* option : qAsConst(m_options)) {
        const QString& link = option->record().link;
        // A setting that depends on another is open only while that one is on.
        const bool linkOn = option->record().type == SettingOpt::CardTextKind || link.isEmpty() ||
                            !m_options.contains(link) || shownValue(link) > 0;
        option->setChangeable(linkOn &&
                              (batteryOffered || !battery.contains(option->record().name)));
    }
}

int SettingView::shownValue(const QString& name) const {
    for (const QVector<ShownItem>& group : m_items) {
        for (const ShownItem& item : group) {
            if (item.name == name)
                return item.shown;
        }
    }
    return -1;
}

int SettingView::initialValue(const QString& name) const {
    for (const SettingTree& tree : m_trees) {
        for (const SettingRecord& record : tree.settings) {
            if (record.name == name)
                return record.initial;
        }
    }
    return -1;
}

// ---- Values ----

void SettingView::onOptionChanged(const QString& name, int value) {
    for (int g = 0; g < m_items.size(); ++g) {
        for (int i = 0; i < m_items[g].size(); ++i) {
            if (m_items[g][i].name != name)
                continue;
            m_items[g][i].shown = value;
            // The group list is edited in place, so Apply writes what the dialog shows.
            if (g < ConfigAccess::groups.size() && i < ConfigAccess::groups[g].items.size())
                ConfigAccess::groups[g].items[i].value = value;
        }
    }
    updateChangeable();
    onStateLabelChange();
}

void SettingView::onStateLabelChange() {
    logDebug("SettingView::onStateLabelChange");
    int unsaved = 0;
    for (const QVector<ShownItem>& group : qAsConst(m_items)) {
        for (const ShownItem& item : group) {
            if (item.card != -1 && item.shown != item.card)
                ++unsaved;
        }
    }
    m_state->setText(unsaved != 0 ? tr("There are unsaved settings.") : QString());
}

void SettingView::onSetData() {
    logDebug("SettingView::onSetData");
    for (int g = 0; g < m_items.size() && g < ConfigAccess::groups.size(); ++g) {
        for (int i = 0; i < m_items[g].size() && i < ConfigAccess::groups[g].items.size(); ++i)
            ConfigAccess::groups[g].items[i].value = m_items[g][i].shown;
    }
}

void SettingView::onResetData() {
    logDebug("SettingView::onResetData");
    for (QVector<ShownItem>& group : m_items) {
        for (ShownItem& item : group) {
            if (item.initial != -1)
                item.shown = item.initial;
        }
    }
    // The group list follows, so that the write after a reset writes the factory values.
    onSetData();
    showValues();
    updateChangeable();
    onStateLabelChange();
}

// ---- Actions ----

bool SettingView::cardPresent() {
    if (!ConfigAccess::cardRoot.isEmpty() && QDir(ConfigAccess::cardRoot).exists())
        return true;
    TavPrompt::inform(this, tr("SD is not exist!"));
    return false;
}

void SettingView::onClickApply() {
    logDebug("SettingView::onClickApply");
    if (!cardPresent())
        return;
    if (m_config.writeMemory())
        onCardWritten();
}

void SettingView::onCardWritten() {
    // The card holds what the dialog shows now: nothing is unsaved any more.
    for (QVector<ShownItem>& group : m_items) {
        for (ShownItem& item : group) {
            if (item.card != -1)
                item.card = item.shown;
        }
    }
    onStateLabelChange();
}

void SettingView::onClickOk() {
    logDebug("SettingView::onClickOk");
    if (!cardPresent())
        return;
    m_applying = true;
    onSetData();
    bool written = true;
    if (m_applying)
        written = m_config.writeMemory();
    m_applying = false;
    if (m_formatPending) {
        m_formatPending = false;
        prepareLongAction();
        startFormat();
    } else if (written) {
        // A failed write was told; the dialog stays with the user's changes.
        accept();
    }
}

void SettingView::onFileFormat() {
    logDebug("SettingView::onFileFormat");
    if (!cardPresent())
        return;
    if (m_applying) {
        // Asked for while OK writes the card: the format follows that write.
        m_formatPending = true;
        return;
    }
    if (m_formatPending) {
        m_formatPending = false;
        prepareLongAction();
        startFormat();
        return;
    }
    if (!TavPrompt::ask(this, tr("File Format"),
                        lineBreak(tr("Do you Really want to file format?"),
                                  tr("It can't go back if you clicked yes."))))
        return;
    onSetData();
    m_config.writeMemory();
    prepareLongAction();
    startFormat();
}

void SettingView::prepareLongAction() {
    setEnabled(false);
    QThread::msleep(kSettleMs);
    repaint();
    QThread::msleep(kSettleMs);
}

void SettingView::startFormat() {
    connect(&m_config, &ConfigAccess::onSendFileFormatFinished, this,
            &SettingView::onFormatFinished, Qt::UniqueConnection);
    emit onSendFormatStarting();
    if (m_config.FileFormat(this) != 0) {
        TavPrompt::inform(this, tr("Error Occured!"));
        setEnabled(true);
    }
}

void SettingView::onFormatFinished() {
    setEnabled(true);
    emit onSendFormatFinished();
    TavPrompt::inform(this, tr("Complete!"));
}

void SettingView::onDeviceSetInit() {
    logDebug("SettingView::onDeviceSetInit");
    if (!cardPresent())
        return;
    const QString warning = tr("It can't go back if you clicked yes.");
    bool layoutChanges = false;
    for (const char* name : {kBitrateSetting, kAllocationSetting}) {
        const int initial = initialValue(name);
        if (initial != -1 && shownValue(name) != -1 && shownValue(name) != initial)
            layoutChanges = true;
    }
    if (layoutChanges) {
        if (!TavPrompt::ask(this, tr("Device Reset"),
                            lineBreak(tr("The memory will be formatted to return some settings to "
                                         "defaults."),
                                      warning)))
            return;
        prepareLongAction();
        readDescriptions();
        onResetData();
        m_config.writeMemory();
        startFormat();
        return;
    }
    if (!TavPrompt::ask(
            this, tr("Device Reset"),
            lineBreak(tr("Would you like to return your device to factory settings?"), warning)))
        return;
    prepareLongAction();
    readDescriptions();
    onResetData();
    if (m_config.writeMemory())
        onCardWritten();
    TavPrompt::inform(this, tr("Complete!"));
    setEnabled(true);
}

void SettingView::onSetProgramFormat() {
    logDebug("SettingView::onSetProgramFormat");
    // Asked for a card although the program's own settings do not live on it: the reset
    // is offered only with the camera at hand.
    if (!cardPresent())
        return;
    if (!TavPrompt::ask(this, tr("Program Reset"), tr("Program will be quit.")))
        return;
    for (const QString& key : kProgramResetKeys)
        AppGlobals::settings->remove(key);
    AppGlobals::settings->sync();
    // Without this the main window would write the keys back as it closes.
    emit onSendNotSaveSetting();
    done(QDialog::Rejected);
    QCoreApplication::quit();
    QStringList arguments;
    for (const std::string& argument : platform::restartArguments())
        arguments << QString::fromStdString(argument);
    const QString program = QCoreApplication::applicationFilePath();
    if (restartHook)
        restartHook(program, arguments);
    else
        QProcess::startDetached(program, arguments);
}
