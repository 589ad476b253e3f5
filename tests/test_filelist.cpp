// The file list driven as a user drives it: loads, drops, channel files as one row, stepping,
// deletions, the background lengths, camera counts and thumbnails; and the type filter: the
// pop-up's toggles, the combo's face, and the mask reaching the list.
#include "AppGlobals.h"
#include "CameraCountDelegate.h"
#include "ItemInfoThread.h"
#include "PlaybackState.h"
#include "RecordingName.h"
#include "TavFileComboBox.h"
#include "TavFileListItem.h"
#include "TavPrompt.h"
#include "TavTypeButton.h"
#include "TavTypeList.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

const QString kExists = QStringLiteral("Item is exist!");
const QString kUnsupported = QStringLiteral("Item format is different with our service supproted!");
const QString kNoItem = QStringLiteral("There is no item.");
const QString kDiskQuestion = QStringLiteral("Do you want to delete the selected files at disk?");

// Makes a short grey video with ffmpeg; extra arguments come before the output path.
bool makeVideo(const QString& path, const QStringList& extra = {}) {
    QProcess ffmpeg;
    QStringList arguments{"-nostdin", "-loglevel", "error", "-y",
                          "-f",       "lavfi",     "-i",    "color=c=gray:s=64x36:r=10:d=2"};
    ffmpeg.start("ffmpeg", arguments + extra + QStringList{path});
    return ffmpeg.waitForFinished(30000) && ffmpeg.exitCode() == 0;
}

} // namespace

class TestFileList : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_recording; // a real two-second recording
    QString m_twoTracks; // a real recording with two cameras in one file
    QString m_avi;       // a real one-camera AVI
    QStringList m_messages;
    QStringList m_questions;
    bool m_answer = false;

    // A copy of the real recording under a recording name, in a folder of its own where
    // need be.
    QString touch(const QString& name, const QString& folder = QStringLiteral("names")) {
        QDir().mkpath(m_dir.filePath(folder));
        const QString path = m_dir.filePath(folder + '/' + name);
        QFile::copy(m_recording, path);
        return path;
    }

    // A file under a recording name holding these bytes (none: an empty file).
    QString broken(const QString& name, const QByteArray& bytes = QByteArray()) {
        QDir().mkpath(m_dir.filePath("broken"));
        const QString path = m_dir.filePath("broken/" + name);
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        return path;
    }

    // The channel files of one recording, stem + "_1.mp4" and so on, in a folder of its own.
    QStringList channels(const QString& folder, const QString& stem, QList<int> numbers) {
        QStringList paths;
        for (int channel : numbers)
            paths << touch(QStringLiteral("%1_%2.mp4").arg(stem).arg(channel), folder);
        return paths;
    }

    // The coordinator's part, which these tests leave out: the file of the chosen row is
    // what plays.
    static void follow(TavFileListItem& list) {
        QObject::connect(&list, &TavFileListItem::doubleClickedItem,
                         [](const QString& file) { PlaybackState::currentFile = file; });
    }

    QStringList shownNames(const TavFileListItem& list) const {
        QStringList names;
        for (int row = 0; row < list.rowCount(); ++row)
            if (!list.isRowHidden(row))
                names << list.item(row, TavFileListItem::NameColumn)->text();
        return names;
    }

    // Each row's camera count as the name column holds it for painting.
    QList<int> shownCameras(const TavFileListItem& list) const {
        QList<int> counts;
        for (int row = 0; row < list.rowCount(); ++row)
            counts << list.item(row, TavFileListItem::NameColumn)
                          ->data(CameraCountDelegate::kCameraCountRole)
                          .toInt();
        return counts;
    }

    void drop(TavFileListItem& list, const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        const QPoint at = list.viewport()->rect().center();
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(list.viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent dropped(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(list.viewport(), &dropped);
        // The list loads a drop once the drop event has returned.
        QCoreApplication::processEvents();
    }

    // Front files of six recordings, each type, two Parking; three cameras, then two.
    QStringList morning() {
        QStringList paths;
        const QList<QPair<QString, int>> recordings{
            {"20240101_080000_INF", 3}, {"20240101_080100_EVT", 1}, {"20240101_080200_PRK", 2},
            {"20240101_080300_USR", 1}, {"20240101_080400_PRK", 1}, {"20240101_080500_INF", 1}};
        for (const auto& recording : recordings) {
            QList<int> numbers;
            for (int channel = 1; channel <= recording.second; ++channel)
                numbers << channel;
            paths << channels("names", recording.first, numbers).first();
        }
        return paths;
    }

    void select(TavFileListItem& list, const QList<int>& rows) {
        list.setFocus();
        QTest::keyPress(&list, Qt::Key_Control);
        list.clearSelection();
        for (int row : rows)
            list.selectionModel()->select(list.model()->index(row, 0),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QTest::keyRelease(&list, Qt::Key_Control);
    }

    void triggerMenu(TavFileListItem& list, const char* action) {
        list.fileListShowContextMenu(QPoint(4, 4));
        auto* menu = list.findChild<QMenu*>("fileListMenu");
        QVERIFY(menu != nullptr && menu->isVisible());
        menu->findChild<QAction*>(action)->trigger();
        menu->hide();
    }

    // The letters of the combo's visible icons, left to right.
    static QStringList comboIcons(const TavFileComboBox& combo) {
        QStringList letters;
        for (int i = 1; i <= 4; ++i) {
            const auto* icon = combo.findChild<QLabel*>(QStringLiteral("fileType%1").arg(i));
            if (icon == nullptr || !icon->isVisibleTo(&combo))
                continue;
            // A label that does not show its type's icon is reported as such.
            const bool showsIcon =
                icon->styleSheet().contains(RecordingName::typeIconPath(icon->text()));
            letters << (showsIcon ? icon->text() : icon->text() + " without icon");
        }
        return letters;
    }

    static QString comboText(const TavFileComboBox& combo) {
        return combo.findChild<QLabel*>("textState")->text();
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_dir.filePath("data");
        QDir().mkpath(AppGlobals::dataFolder);
        QDir().mkpath(m_dir.filePath("names"));
        const QStringList h264{"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"};
        m_recording = m_dir.filePath("20240102_090000_EVT_1.mp4");
        QVERIFY(makeVideo(m_recording, h264));
        m_twoTracks = m_dir.filePath("single/20240612_081732_INF_4.mp4");
        QDir().mkpath(m_dir.filePath("single"));
        QVERIFY(
            makeVideo(m_twoTracks, QStringList{"-f", "lavfi", "-i", "color=c=blue:s=64x36:r=10:d=2",
                                               "-map", "0:v", "-map", "1:v"} +
                                       h264));
        m_avi = m_dir.filePath("single/20240612_123100_PRK_1.avi");
        QVERIFY(makeVideo(m_avi, {"-c:v", "mpeg4"}));
        TavPrompt::informHook = [this](const QString& text) { m_messages << text; };
        TavPrompt::askHook = [this](const QString& text) {
            m_questions << text;
            return m_answer;
        };
    }

    void init() {
        m_messages.clear();
        m_questions.clear();
        m_answer = false;
        PlaybackState::playStatus = PlaybackState::PlayIdle;
        PlaybackState::currentFile.clear();
    }

    void onePathAppendsAndRefusesDuplicates() {
        TavFileListItem list;
        const QString later = touch("20240101_100000_INF_1.mp4");
        const QString earlier = touch("20240101_090000_USR_2.mp4");
        QSignalSpy refresh(&list, &TavFileListItem::onSendRefreshFilter);
        list.loadPaths({later});
        list.loadPaths({m_recording});
        list.loadPaths({later});
        QCOMPARE(m_messages, QStringList{kExists});
        QCOMPARE(refresh.count(), 2);
        // One path is appended where it lands, never sorted in.
        list.loadPaths({earlier});
        QCOMPARE(shownNames(list), (QStringList{"20240101_100000_INF", "20240102_090000_EVT",
                                                "20240101_090000_USR"}));
        // A rear camera's file alone is a recording too, and the file the player gets.
        QCOMPARE(RecordingList::records.at(2).filePath, earlier);
        QCOMPARE(shownCameras(list), (QList<int>{1, 1, 1}));
        // A single recording's length is read at once.
        QCOMPARE(list.item(1, TavFileListItem::LengthColumn)->text(), QString("00:02"));
        QCOMPARE(list.item(2, TavFileListItem::TypeColumn)->text(), QString("U"));
    }

    void manyPathsReplaceSortedAndMergeRepeats() {
        TavFileListItem list;
        list.loadPaths({touch("20240101_070000_INF_1.mp4", "many")});
        const QString a = touch("20240101_080000_EVT_1.mp4", "many");
        const QString b = touch("20240101_080000_INF_2.mp4", "many");
        const QString c = touch("20230101_080000_PRK_1.avi", "many");
        list.loadPaths({a, b, b, c});
        QVERIFY(m_messages.isEmpty());
        // The earlier row is gone: a batch replaces the list.
        QCOMPARE(shownNames(list), (QStringList{"20230101_080000_PRK_1", "20240101_080000_EVT",
                                                "20240101_080000_INF"}));
        QCOMPARE(RecordingList::visibleRows, (QVector<int>{0, 1, 2}));
        QCOMPARE(RecordingList::records.at(2).suffixCount, 2);
        QCOMPARE(RecordingList::records.at(2).suffixes[1], QString("mp4"));

        // Dropping the same two files twice gives the same two rows, without a word.
        drop(list, {b, a});
        drop(list, {b, a});
        QCOMPARE(shownNames(list), (QStringList{"20240101_080000_EVT", "20240101_080000_INF"}));
        QVERIFY(m_messages.isEmpty());
    }

    void badInputIsReported() {
        TavFileListItem list;
        const QString notes = touch("notes.txt", "bad");
        const QString upper = touch("20240101_080000_INF_1.MP4", "bad");
        const QString a = touch("20240101_080000_INF_1.mp4", "bad");
        const QString b = touch("20240101_080100_EVT_1.mp4", "bad");
        QSignalSpy refresh(&list, &TavFileListItem::onSendRefreshFilter);
        drop(list, {notes});
        QCOMPARE(m_messages, QStringList{kUnsupported});
        QCOMPARE(list.rowCount(), 0);
        // The valid ones are listed and the user still hears about the rest.
        drop(list, {b, notes, a, upper});
        QCOMPARE(m_messages, (QStringList{kUnsupported, kUnsupported}));
        QCOMPARE(shownNames(list), (QStringList{"20240101_080000_INF", "20240101_080100_EVT"}));
        QCOMPARE(refresh.count(), 0);
        // One recording beside a file that is none is added, as it would be alone.
        const QString c = touch("20240101_080200_USR_1.mp4", "bad");
        drop(list, {notes, c});
        QCOMPARE(m_messages.size(), 3);
        QCOMPARE(shownNames(list), (QStringList{"20240101_080000_INF", "20240101_080100_EVT",
                                                "20240101_080200_USR"}));
        // Nothing usable in a batch leaves the list as it was.
        drop(list, {notes, upper});
        QCOMPARE(list.rowCount(), 3);
        list.loadPaths({});
        QCOMPARE(m_messages.last(), kNoItem);
    }

    void folderIsListedLikeOpenFolder() {
        const QString folder = m_dir.filePath("folder");
        QDir().mkpath(folder);
        for (const char* name : {"20240105_100000_INF_1.mp4", "20240105_090000_EVT_1.mp4",
                                 "20240105_110000_PRK_2.avi"})
            QFile(folder + '/' + QLatin1String(name)).open(QIODevice::WriteOnly);
        QDir().mkpath(folder + "/20240105_120000_INF_1.mp4"); // a folder is not a recording
        TavFileListItem list;
        PlaybackState::playStatus = PlaybackState::PlayRunning;
        QSignalSpy stop(&list, &TavFileListItem::onSendStop);
        drop(list, {folder});
        QCOMPARE(shownNames(list), (QStringList{"20240105_090000_EVT", "20240105_100000_INF",
                                                "20240105_110000_PRK_2"}));
        QCOMPARE(stop.count(), 1);
        QCOMPARE(stop.at(0).at(0).toInt(), 3);
        QVERIFY(m_messages.isEmpty());

        TavPrompt::openFolderHook = [&](const QString&) { return folder; };
        list.onDeleteAllFileAtList();
        list.onOpenFolderDlg();
        TavPrompt::openFolderHook = nullptr;
        QCOMPARE(list.rowCount(), 3);
    }

    void channelFilesOfARecordingAreOneRow() {
        // Three, two and one cameras, a rear one alone, a one-file recording, two AVI cameras.
        const QString folder = m_dir.filePath("morning");
        channels("morning", "20240612_081502_INF", {1, 2, 3});
        channels("morning", "20240612_081642_INF", {1, 2});
        channels("morning", "20240612_081712_USR", {1});
        channels("morning", "20240612_081800_EVT", {2});
        QVERIFY(QFile::copy(m_twoTracks, folder + "/20240612_081732_INF_4.mp4"));
        QVERIFY(QFile::copy(m_avi, folder + "/20240612_123100_PRK_1.avi"));
        QVERIFY(QFile::copy(m_avi, folder + "/20240612_123100_PRK_2.avi"));
        TavFileListItem list;
        connect(&list, &TavFileListItem::onSendFinishReadFileTime, &list,
                &TavFileListItem::onFinishReadFileTime);
        QSignalSpy finished(&list, &TavFileListItem::onSendFinishReadFileTime);
        drop(list, {folder});
        QCOMPARE(shownNames(list),
                 (QStringList{"20240612_081502_INF", "20240612_081642_INF", "20240612_081712_USR",
                              "20240612_081732_INF", "20240612_081800_EVT", "20240612_123100_PRK_1",
                              "20240612_123100_PRK_2"}));
        QVERIFY(m_messages.isEmpty());
        // A one-file recording's cameras are its video tracks, read with its length.
        QVERIFY(finished.wait(20000));
        QCOMPARE(shownCameras(list), (QList<int>{3, 2, 1, 2, 1, 1, 1}));
        const auto& records = RecordingList::records;

        // The player gets the front file (or the lowest camera's); the row's length is its.
        QCOMPARE(records.at(0).filePath, folder + "/20240612_081502_INF_1.mp4");
        QCOMPARE(records.at(0).channelFiles, (QStringList{folder + "/20240612_081502_INF_1.mp4",
                                                          folder + "/20240612_081502_INF_2.mp4",
                                                          folder + "/20240612_081502_INF_3.mp4"}));
        QCOMPARE(records.at(4).filePath, folder + "/20240612_081800_EVT_2.mp4");
        QCOMPARE(records.at(3).channelFiles, QStringList{folder + "/20240612_081732_INF_4.mp4"});
        QCOMPARE(records.at(3).durationText, QString("00:02"));
        QCOMPARE(records.at(6).filePath, folder + "/20240612_123100_PRK_2.avi");

        // The count is painted at the name's right end, and only once it is known.
        list.resize(300, 300);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        auto* delegate = qobject_cast<CameraCountDelegate*>(
            list.itemDelegateForColumn(TavFileListItem::NameColumn));
        QVERIFY(delegate != nullptr);
        auto badgePixels = [&] {
            const QRect cell = list.visualItemRect(list.item(0, TavFileListItem::NameColumn));
            const QRect badge = delegate->badgeRect(cell, 3, list.layoutDirection());
            const QImage image = list.viewport()->grab().toImage();
            const QRgb background = image.pixel(badge.left() - 2, badge.top() + 1);
            int pixels = 0;
            for (int y = badge.top(); y <= badge.bottom(); ++y)
                for (int x = badge.left(); x <= badge.right(); ++x)
                    pixels += image.pixel(x, y) != background;
            return pixels;
        };
        QVERIFY(badgePixels() > 20);
        // Right to left (Hebrew) the name starts at the right, and the count moves to the left.
        list.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(delegate->badgeRect(QRect(0, 0, 200, 24), 3, Qt::RightToLeft).right() < 100);
        list.item(0, TavFileListItem::NameColumn)
            ->setData(CameraCountDelegate::kCameraCountRole, 0);
        QCOMPARE(badgePixels(), 0);
    }

    void oneRecordingLoadedAgainOrAddedByItsFiles() {
        const QString other = touch("20240612_080000_EVT_1.mp4", "siblings");
        const QStringList drive = channels("siblings", "20240612_090000_INF", {1, 2, 3});
        const QStringList parked = channels("siblings", "20240612_100000_PRK", {1, 3});
        TavFileListItem list;
        QSignalSpy refresh(&list, &TavFileListItem::onSendRefreshFilter);
        list.loadPaths({other});
        // One rear camera's file brings its whole recording, which plays from its front file.
        list.loadPaths({drive.at(1)});
        QCOMPARE(list.rowCount(), 2);
        QCOMPARE(RecordingList::records.at(1).filePath, drive.at(0));
        QCOMPARE(RecordingList::records.at(1).channelFiles, drive);
        // Any other file of it, or all of them together, is that recording again.
        list.loadPaths({drive.at(2)});
        drop(list, {drive.at(2), drive.at(0), drive.at(1)});
        QCOMPARE(m_messages, (QStringList{kExists, kExists}));
        QCOMPARE(refresh.count(), 2);
        // The files of one more recording dropped together are added, as one file is.
        drop(list, {parked.at(1), parked.at(0)});
        QCOMPARE(m_messages.size(), 2);
        QCOMPARE(refresh.count(), 3);
        QCOMPARE(shownNames(list), (QStringList{"20240612_080000_EVT", "20240612_090000_INF",
                                                "20240612_100000_PRK"}));
        QCOMPARE(shownCameras(list), (QList<int>{1, 3, 2}));

        // Files of two recordings replace the list; each finds its other files on disk.
        list.loadPaths({drive.at(2), parked.at(1)});
        QCOMPARE(shownNames(list), (QStringList{"20240612_090000_INF", "20240612_100000_PRK"}));
        QCOMPARE(RecordingList::records.at(0).channelFiles, drive);
        QCOMPARE(RecordingList::records.at(1).channelFiles, parked);
        QCOMPARE(m_messages.size(), 2);
    }

    void deleteFromDiskAsksThenTakesEveryFileAndNamesWhatIsLeft() {
        QStringList drive = channels("deleting", "20240612_090000_INF", {1, 2});
        const QStringList parked = channels("deleting", "20240612_100000_PRK", {1, 2});
        const QStringList kept = channels("deleting", "20240612_110000_EVT", {1, 2});
        TavFileListItem list;
        follow(list);
        list.loadPaths({m_dir.filePath("deleting")});
        list.show();
        QCOMPARE(list.rowCount(), 3);
        list.onSetFirstFile();
        PlaybackState::playStatus = PlaybackState::PlayPaused;
        QSignalSpy stop(&list, &TavFileListItem::onSendStop);
        // A camera's file copied in after the listing belongs to the recording too.
        drive << touch("20240612_090000_INF_3.mp4", "deleting");
        // A file that cannot go: it has become a folder with something in it.
        QVERIFY(QFile::remove(parked.at(1)));
        QVERIFY(QDir().mkpath(parked.at(1) + "/inside"));
        select(list, {0, 1});
        triggerMenu(list, "deleteFromDisk");
        QCOMPARE(m_questions, QStringList{kDiskQuestion});
        QVERIFY(QFile::exists(drive.at(0)) && QFile::exists(parked.at(0)));
        QCOMPARE(list.rowCount(), 3);

        m_answer = true;
        triggerMenu(list, "deleteFromDisk");
        QCOMPARE(stop.count(), 1);
        QCOMPARE(stop.at(0).at(0).toInt(), 4);
        for (const QString& path : drive)
            QVERIFY(!QFile::exists(path));
        QVERIFY(!QFile::exists(parked.at(0)));
        QVERIFY(QFileInfo(parked.at(1)).isDir());
        // Its row goes all the same, and the user hears what is left.
        QCOMPARE(shownNames(list), QStringList{"20240612_110000_EVT"});
        QCOMPARE(m_messages, QStringList{"These files could not be deleted:\n" +
                                         QDir::toNativeSeparators(parked.at(1))});
        for (const QString& path : kept)
            QVERIFY(QFile::exists(path));
    }

    // The filter's steps as the panel and the player ask for them (the steps themselves are
    // the list model's, tested without a window).
    void typeMaskSteersNextAndPrevious() {
        TavFileListItem list;
        follow(list);
        const QStringList paths = morning();
        list.loadPaths(paths);
        QSignalSpy chosen(&list, &TavFileListItem::doubleClickedItem);
        list.onSortFile(1 | 2 | 8); // no Parking
        QVERIFY(list.isRowHidden(2) && list.isRowHidden(4) && !list.isRowHidden(3));
        QCOMPARE(list.getCanPlayFileCount(), 4);

        list.onSetFirstFile();
        for (int i = 0; i < 3; ++i)
            list.onChangePlayItem(1);
        QCOMPARE(chosen.count(), 4);
        QCOMPARE(chosen.last().at(0).toString(), paths.at(5));
        QCOMPARE(list.currentRow(), 5);
        // The user at an end is told; playback at the end stops quietly at the logo.
        list.onChangePlayItem(1);
        QCOMPARE(m_messages, QStringList{kNoItem});
        m_messages.clear();
        QSignalSpy logo(&list, &TavFileListItem::onSendLogoSet);
        list.onForwardItemSet();
        QVERIFY(m_messages.isEmpty());
        QCOMPARE(chosen.count(), 4);
        QCOMPARE(logo.count(), 1);
        QCOMPARE(logo.at(0).at(0).toBool(), true);
        list.onChangePlayItem(-1);
        QCOMPARE(chosen.last().at(0).toString(), paths.at(3));
        list.onSortFile(0);
        list.onSetFirstFile();
        QCOMPARE(m_messages.last(), kNoItem);
    }

    void deleteAtListAsksFirst() {
        TavFileListItem list;
        follow(list);
        const QStringList paths = morning();
        list.loadPaths(paths);
        list.show();
        list.onChangePlayItem(1);
        list.onChangePlayItem(1); // row 1 plays
        PlaybackState::playStatus = PlaybackState::PlayRunning;
        QSignalSpy pause(&list, &TavFileListItem::onSendPause);
        QSignalSpy stop(&list, &TavFileListItem::onSendStop);
        select(list, {1, 4});

        triggerMenu(list, "deleteAtList");
        QCOMPARE(m_questions, QStringList{"Do you want to delete the selected files at list?"});
        QCOMPARE(list.rowCount(), 6);
        QCOMPARE(pause.count(), 1);
        QCOMPARE(stop.count(), 0);

        m_answer = true;
        triggerMenu(list, "deleteAtList");
        QCOMPARE(stop.count(), 1);
        QCOMPARE(stop.at(0).at(0).toInt(), 3);
        QCOMPARE(list.rowCount(), 4);
        QCOMPARE(RecordingList::visibleRows, (QVector<int>{0, 1, 2, 3}));
        QCOMPARE(RecordingList::records.at(3).filePath, paths.at(5));
        for (const QString& path : paths)
            QVERIFY(QFile::exists(path));

        // The Delete key asks the same question; a row that is not playing sends no stop.
        select(list, {0});
        QTest::keyClick(&list, Qt::Key_Delete);
        QCOMPARE(m_questions.size(), 3);
        QCOMPARE(list.rowCount(), 3);
        QCOMPARE(stop.count(), 1);
        list.clearSelection();
        triggerMenu(list, "deleteAtList");
        QCOMPARE(m_questions.size(), 3); // nothing selected: nothing asked
    }

    void doubleClickAndEnterHandOverTheRowsFile() {
        TavFileListItem list;
        follow(list);
        QStringList paths = morning();
        // The first recording is loaded by its third camera's file: it plays from its front.
        list.loadPaths(QStringList{QString(paths.at(0)).replace("_1.mp4", "_3.mp4")} +
                       paths.mid(1));
        list.resize(300, 400);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        QSignalSpy stop(&list, &TavFileListItem::onSendStop);
        QSignalSpy chosen(&list, &TavFileListItem::doubleClickedItem);
        const QPoint third = list.visualItemRect(list.item(3, 1)).center();

        list.onBlockEvent(true);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, third);
        QCOMPARE(chosen.count(), 0);
        list.onBlockEvent(false);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, third);
        QCOMPARE(stop.count(), 1);
        QCOMPARE(stop.at(0).at(0).toInt(), 1);
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(PlaybackState::currentFile, paths.at(3));
        QCOMPARE(RecordingList::currentIndex, 3);
        QCOMPARE(list.selectionModel()->selectedRows(), QModelIndexList{list.model()->index(3, 0)});
        // Enter plays the current row as a double click does.
        list.setCurrentCell(0, TavFileListItem::NameColumn);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(chosen.count(), 2);
        QCOMPARE(PlaybackState::currentFile, paths.at(0));
        QCOMPARE(RecordingList::currentIndex, 0);
    }

    // Other cameras' recordings: a copied card's type folders listed and typed as the own.
    void otherCamerasFolders() {
        const QString cameras = QStringLiteral(FOREIGN_MEDIA) + "/cameras/";
        TavFileListItem list;
        connect(&list, &TavFileListItem::onSendFinishReadFileTime, &list,
                &TavFileListItem::onFinishReadFileTime);
        QSignalSpy lengths(&list, &TavFileListItem::onSendFinishReadFileTime);
        const QStringList names{"20240612_081502_INF", "20240612_081514_INF", "20240612_081526_INF",
                                "20240612_081538_INF", "20240612_081550_INF", "20240612_081602_INF",
                                "20240612_081614_EVT", "20240612_081626_USR", "20240612_081638_USR",
                                "20240612_123000_PRK"};
        list.loadPaths({cameras});
        QCOMPARE(shownNames(list), names.mid(0, 7) + names.mid(9));
        QVERIFY(lengths.wait(30000));
        list.loadPaths(
            {cameras + "Normal", cameras + "Event", cameras + "Parking", cameras + "Action"});
        QVERIFY2(m_messages.isEmpty(), qPrintable(m_messages.join('|')));
        QVERIFY(lengths.wait(30000));
        QCOMPARE(shownNames(list), names);
        QCOMPARE(shownCameras(list), QList<int>({2, 2, 3, 2, 1, 1, 2, 1, 1, 1}));
        QStringList types, durations;
        for (int row = 0; row < list.rowCount(); ++row) {
            types << list.item(row, TavFileListItem::TypeColumn)->text();
            durations << list.item(row, TavFileListItem::LengthColumn)->text();
        }
        QCOMPARE(types, QStringList({"I", "I", "I", "I", "I", "I", "E", "U", "U", "P"}));
        QCOMPARE(durations.count("00:12"), 9);
        QCOMPARE(durations.last(), QString("00:08"));
        list.onSortFile(2); // Event only
        QCOMPARE(RecordingList::visibleRows, QVector<int>({6}));
    }

    void modifierKeysChooseTheSelectionMode() {
        TavFileListItem list;
        list.show();
        list.setFocus();
        QCOMPARE(list.selectionMode(), QAbstractItemView::SingleSelection);
        QTest::keyPress(&list, Qt::Key_Shift);
        QCOMPARE(list.selectionMode(), QAbstractItemView::ExtendedSelection);
        QTest::keyPress(&list, Qt::Key_Control);
        QTest::keyRelease(&list, Qt::Key_Shift);
        QCOMPARE(list.selectionMode(), QAbstractItemView::ExtendedSelection);
        QTest::keyRelease(&list, Qt::Key_Control);
        QCOMPARE(list.selectionMode(), QAbstractItemView::SingleSelection);
        list.onBlockEvent(true);
        QTest::keyPress(&list, Qt::Key_Control);
        QCOMPARE(list.selectionMode(), QAbstractItemView::SingleSelection);
    }

    void cardListReplacesEverything() {
        TavFileListItem list;
        list.loadPaths(morning());
        list.onSetFirstFile();
        QSignalSpy logo(&list, &TavFileListItem::onSendLogoSet);
        list.onReceiveFileList({touch("20240201_080000_EVT_1.mp4")});
        QCOMPARE(list.rowCount(), 1);
        QCOMPARE(RecordingList::records.size(), 1);
        QVERIFY(PlaybackState::currentFile.isEmpty());
        QCOMPARE(RecordingList::currentIndex, 0);
        QCOMPARE(logo.count(), 1);
    }

    void lengthsArriveInTheBackground() {
        const QString folder = m_dir.filePath("lengths");
        QDir().mkpath(folder);
        QStringList paths;
        // Enough for the reading to be split between readers.
        for (int i = 0; i < 70; ++i) {
            paths << folder + QStringLiteral("/20240301_10%1%2_INF_1.mp4")
                                  .arg(i / 60, 2, 10, QChar('0'))
                                  .arg(i % 60, 2, 10, QChar('0'));
            QVERIFY(QFile::copy(m_recording, paths.last()));
        }
        paths << broken("20240301_110000_INF_1.mp4"); // empty: no length
        TavFileListItem list;
        connect(&list, &TavFileListItem::onSendFinishReadFileTime, &list,
                &TavFileListItem::onFinishReadFileTime);
        QSignalSpy finished(&list, &TavFileListItem::onSendFinishReadFileTime);
        QSignalSpy progress(&list, &TavFileListItem::onSendReadProgress);
        list.loadPaths(paths);
        QVERIFY(finished.wait(20000));
        QCOMPARE(progress.last().at(0).toInt(), 71);
        QCOMPARE(progress.last().at(1).toInt(), 71);
        for (int row = 0; row < 70; ++row)
            QCOMPARE(list.item(row, TavFileListItem::LengthColumn)->text(), QString("00:02"));
        QCOMPARE(list.item(70, TavFileListItem::LengthColumn)->text(), QString("--:--"));
        QCOMPARE(list.item(70, TavFileListItem::LengthColumn)->toolTip(),
                 QString("The file is empty."));
        QCOMPARE(RecordingList::records.at(69).durationText, QString("00:02"));
    }

    void thumbnailBecomesTheToolTip() {
        TavFileListItem list;
        list.resize(300, 300);
        list.show();
        list.loadPaths({broken("20240101_060000_INF_1.mp4"), m_recording});
        QTRY_VERIFY_WITH_TIMEOUT(!RecordingList::records.at(1).thumbPath.isEmpty(), 20000);
        const QString thumb = RecordingList::records.at(1).thumbPath;
        QVERIFY(thumb.startsWith(AppGlobals::dataFolder + "/Thumbs/"));
        QCOMPARE(QImage(thumb).width(), ItemInfoThread::kThumbnailWidth);
        QCOMPARE(list.item(1, TavFileListItem::NameColumn)->toolTip(),
                 QString("<img src=\"%1\">").arg(thumb));
        // The broken file was asked for first and simply has none.
        QVERIFY(RecordingList::records.at(0).thumbPath.isEmpty());
        QCOMPARE(list.item(0, TavFileListItem::NameColumn)->toolTip(),
                 QString("The file is empty."));
    }

    // Files that cannot be played are marked, say why when played, and are passed over when
    // playback moves on by itself.
    void unplayableFilesAreMarkedAndSayWhy() {
        QFile source(m_recording);
        QVERIFY(source.open(QIODevice::ReadOnly));
        const QByteArray recording = source.readAll();
        const QStringList paths{
            broken("20240501_100000_INF_1.mp4"),
            broken("20240501_100100_INF_1.mp4", "a note, not a recording\n"),
            broken("20240501_100200_INF_1.mp4", recording.left(recording.size() / 2)),
            touch("20240501_100300_INF_1.mp4", "broken")};
        TavFileListItem list;
        follow(list);
        list.resize(300, 300);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        QSignalSpy chosen(&list, &TavFileListItem::doubleClickedItem);
        connect(&list, &TavFileListItem::onSendFinishReadFileTime, &list,
                &TavFileListItem::onFinishReadFileTime);
        QSignalSpy finished(&list, &TavFileListItem::onSendFinishReadFileTime);
        list.loadPaths(paths);
        // Played before the lengths are read: the file is read then.
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                           list.visualItemRect(list.item(1, 1)).center());
        QCOMPARE(chosen.count(), 0);
        QCOMPARE(m_messages, QStringList{"This recording cannot be played.\nThe file is not a "
                                         "video recording."});
        QVERIFY(finished.wait(20000));
        const QStringList reasons{
            "The file is empty.", "The file is not a video recording.",
            "The recording is damaged or was cut off (for example by a power loss) and cannot "
            "be opened."};
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(list.item(row, TavFileListItem::LengthColumn)->toolTip(), reasons.at(row));
            QCOMPARE(list.item(row, TavFileListItem::LengthColumn)->text(), QString("--:--"));
        }
        QCOMPARE(list.item(3, TavFileListItem::LengthColumn)->text(), QString("00:02"));
        m_messages.clear();
        list.setCurrentCell(2, TavFileListItem::NameColumn);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(m_messages, QStringList{"This recording cannot be played.\n" + reasons.at(2)});
        QCOMPARE(chosen.count(), 0);
        // From before the broken rows, playback moves on to the good one silently.
        RecordingList::currentIndex = -1;
        m_messages.clear();
        list.onForwardItemSet();
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(PlaybackState::currentFile, paths.at(3));
        QVERIFY(m_messages.isEmpty());
    }

    void thumbnailWorkerStopsAndCopesWithoutFfmpeg() {
        ItemInfoThread worker;
        QSignalSpy made(&worker, &ItemInfoThread::onSendUpdateThumbnail);
#ifdef Q_OS_UNIX
        // ffmpeg waits for ever on a pipe nobody writes to: only a kill ends it.
        const QString pipe = m_dir.filePath("20240101_050000_INF_1.mp4");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        worker.addJobs({{pipe, 0}, {m_recording, 1}});
        QVERIFY(worker.isBusy());
        QTRY_COMPARE(worker.currentPath(), pipe);
        worker.stop();
        QVERIFY(worker.wait(5000));
        QVERIFY(!worker.isBusy());
        QVERIFY(worker.currentPath().isEmpty());
        QCOMPARE(made.count(), 0); // the queued recording was dropped too
        QVERIFY(QDir(ItemInfoThread::thumbsFolder()).entryList({"*.part.jpg"}).isEmpty());
#endif
        // Without an ffmpeg there are no thumbnails, and no trouble either.
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", m_dir.filePath("names").toLocal8Bit());
        QVERIFY(ItemInfoThread::ffmpegProgram().isEmpty());
        QFile::remove(ItemInfoThread::thumbnailPath(m_recording));
        worker.addJobs({{m_recording, 3}});
        QTRY_VERIFY(!worker.isBusy());
        qputenv("PATH", path);
        QCOMPARE(made.count(), 0);
        worker.addJobs({{m_recording, 4}});
        QVERIFY(made.wait(20000));
        QCOMPARE(made.at(0).at(0).toString(), ItemInfoThread::thumbnailPath(m_recording));
        QCOMPARE(made.at(0).at(1).toInt(), 4);
    }

    // ---- The type filter ----

    void comboShowsTheChoice_data() {
        QTest::addColumn<int>("mask");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("icons");
        QTest::newRow("all") << 15 << "  All Type" << QStringList{};
        QTest::newRow("none") << 0 << "  Filter" << QStringList{};
        QTest::newRow("parking") << 4 << "  Filter" << QStringList{"P"};
        QTest::newRow("user and infinity") << 9 << "  Filter" << QStringList{"I", "U"};
        QTest::newRow("three") << 14 << "  Filter" << QStringList{"E", "P", "U"};
        QTest::newRow("high bits ignored") << 31 << "  All Type" << QStringList{};
    }
    void comboShowsTheChoice() {
        QFETCH(int, mask);
        QFETCH(QString, text);
        QFETCH(QStringList, icons);
        TavFileComboBox combo;
        QCOMPARE(combo.mask(), 15);
        // From a narrower choice first, so that icons left over would show.
        combo.onUpdateSetData(7);
        QSignalSpy filter(&combo, &TavFileComboBox::onSendFileTypeFilter);
        combo.onUpdateSetData(mask);
        QCOMPARE(comboText(combo), text);
        QCOMPARE(comboIcons(combo), icons);
        QCOMPARE(combo.textState(), text == "  All Type" ? 0 : 1);
        QCOMPARE(filter.count(), 1);
        QCOMPARE(filter.at(0).at(0).toInt(), mask & 15);
    }

    void popUpTogglesMakeTheMask() {
        TavTypeList list;
        QCOMPARE(list.mask(), 15);
        QVERIFY(!list.isVisible());
        QSignalSpy mask(&list, &TavTypeList::onSendCurrentType);
        QSignalSpy shown(&list, &TavTypeList::onSendTypeListSet);
        list.onControlTypeList();
        QVERIFY(list.isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        auto* park = list.findChild<TavTypeButton*>("park");
        auto* event = list.findChild<TavTypeButton*>("event");
        QVERIFY(park != nullptr && event != nullptr);
        QTest::mouseClick(park, Qt::LeftButton);
        QCOMPARE(mask.last().at(0).toInt(), 11);
        QVERIFY(!park->isChecked());
        QTest::mouseClick(event, Qt::LeftButton);
        QCOMPARE(mask.last().at(0).toInt(), 9);
        for (const char* name : {"infinity", "user"})
            QTest::mouseClick(list.findChild<TavTypeButton*>(name), Qt::LeftButton);
        QCOMPARE(mask.last().at(0).toInt(), 0);
        QTest::mouseClick(park, Qt::LeftButton);
        QCOMPARE(mask.last().at(0).toInt(), 4);
        QCOMPARE(mask.count(), 5);

        list.onControlTypeList();
        QVERIFY(!list.isVisible());
        list.onHideTypeList(); // already closed: says nothing
        list.onControlTypeList();
        QTest::keyClick(&list, Qt::Key_Escape);
        QVERIFY(!list.isVisible());
        QCOMPARE(shown.count(), 4); // shown, hidden, shown, hidden
        QCOMPARE(shown.at(3).at(0).toInt(), 0);
    }
};

QTEST_MAIN(TestFileList)
#include "test_filelist.moc"
