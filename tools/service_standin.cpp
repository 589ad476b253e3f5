// A stand-in for the companion service, for tests and for trying the program's update and
// report dialogs by hand. It is not the service: it downloads and sends nothing, it only
// speaks the service's side of the local-socket conversation with answers of one's choice.
//
//   service_standin [--name NAME] [--transcript FILE] [--answer REQUEST=ANSWER]...
//
// REQUEST is a message the program sends ("HelloLauncher", "Version", "Download", ...),
// "@version" for the bare program version the program sends after its start, or "*" for
// anything else. ANSWER is a list of items separated by "|":
//   text          written as it is
//   @silent       nothing (the program waits in vain)
//   @close        the connection is closed at once, mid-request
//   @garbage      bytes that are no text: invalid UTF-8, NUL, printf directives
//   @long=N       N bytes of text
//   @sleep=MS     a pause before the items that follow
//   @deaf         nothing more is read from this program (its writes pile up)
// Items not separated by @sleep go out in one write, so the program reads them as one
// message ("NoUpdate|FindUpdate" arrives as "NoUpdateFindUpdate").
//
// Without --answer it answers as a service that finds no update would:
//   HelloLauncher=HelloClient  @version=NoUpdate  Version=<the version given by --latest,
//   1.0.6 by default>  Download=wait  DownloadWaiting=@sleep=1500|complete
//   Report=Send_Complete
// and --latest 1.0.7 makes it offer an update (@version=FindUpdate, Version=1.0.7).
//
// The transcript has one line per event: "+" a program connected, "< text" it sent,
// "> text" the stand-in answered, "x" the stand-in closed, "deaf" it stopped reading, "-" the
// program disconnected.
// The stand-in prints "listening" on its standard output once the program can connect.
#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <QRegularExpression>
#include <QStringList>
#include <QTextStream>
#include <QTimer>

#include <cstdio>

class ServiceStandIn : public QObject {
public:
    ServiceStandIn(const QString& transcriptPath, const QHash<QString, QString>& answers)
        : m_transcript(transcriptPath), m_answers(answers) {
        if (!transcriptPath.isEmpty())
            m_transcript.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text);
        connect(&m_server, &QLocalServer::newConnection, this, &ServiceStandIn::onConnection);
    }

    bool listen(const QString& name) {
        QLocalServer::removeServer(name);
        return m_server.listen(name);
    }

    QString errorString() const { return m_server.errorString(); }

private:
    void note(const QString& line) {
        if (!m_transcript.isOpen())
            return;
        m_transcript.write(line.toUtf8() + '\n');
        m_transcript.flush();
    }

    void onConnection() {
        while (QLocalSocket* client = m_server.nextPendingConnection()) {
            note(QStringLiteral("+"));
            connect(client, &QLocalSocket::readyRead, this, [this, client] { onRead(client); });
            connect(client, &QLocalSocket::disconnected, this, [this, client] {
                note(QStringLiteral("-"));
                client->deleteLater();
            });
        }
    }

    // The messages in one read. The program never joins them, except that messages it
    // does not wait an answer for may follow each other closely.
    static QStringList split(const QString& chunk) {
        static const QStringList known = {"HelloLauncher", "GoodbyeLauncher", "DownloadWaiting",
                                          "Download",      "Version",         "updateAgreement",
                                          "Report",        "closeToDoNot"};
        static const QRegularExpression version(QStringLiteral("^[0-9]+(\\.[0-9]+)+"));
        QStringList messages;
        int at = 0;
        while (at < chunk.size()) {
            const QString rest = chunk.mid(at);
            QString found;
            for (const QString& word : known) {
                if (rest.startsWith(word)) {
                    found = word;
                    break;
                }
            }
            if (found.isEmpty())
                found = version.match(rest).captured(0);
            if (found.isEmpty())
                found = rest;
            messages << found;
            at += found.size();
        }
        return messages;
    }

    void onRead(QLocalSocket* client) {
        for (const QString& message : split(QString::fromUtf8(client->readAll()))) {
            note(QStringLiteral("< ") + message);
            QString answer;
            if (m_answers.contains(message))
                answer = m_answers.value(message);
            else if (QRegularExpression(QStringLiteral("^[0-9]+(\\.[0-9]+)+$"))
                         .match(message)
                         .hasMatch())
                answer = m_answers.value(QStringLiteral("@version"));
            else
                answer = m_answers.value(QStringLiteral("*"));
            if (!answer.isEmpty())
                play(client, answer.split('|'));
        }
    }

    // Writes the items up to the next pause in one go and plays the rest after it.
    void play(QPointer<QLocalSocket> client, QStringList items) {
        QByteArray bytes;
        QStringList shown;
        while (!items.isEmpty() && client) {
            const QString item = items.takeFirst();
            if (item.startsWith(QLatin1String("@sleep="))) {
                flush(client, bytes, shown);
                QTimer::singleShot(item.mid(7).toInt(), this,
                                   [this, client, items] { play(client, items); });
                return;
            }
            if (item == QLatin1String("@silent"))
                continue;
            if (item == QLatin1String("@deaf")) {
                disconnect(client, &QLocalSocket::readyRead, this, nullptr);
                client->setReadBufferSize(1);
                note(QStringLiteral("deaf"));
                continue;
            }
            if (item == QLatin1String("@close")) {
                flush(client, bytes, shown);
                note(QStringLiteral("x"));
                client->abort();
                return;
            }
            if (item == QLatin1String("@garbage")) {
                bytes += QByteArray("\xff\xfe%n%s%s\x00\xc3(\x80garbage", 21);
                shown << QStringLiteral("@garbage");
            } else if (item.startsWith(QLatin1String("@long="))) {
                const int size = item.mid(6).toInt();
                bytes += QByteArray(size, 'x');
                shown << QStringLiteral("@long=%1").arg(size);
            } else {
                bytes += item.toUtf8();
                shown << item;
            }
        }
        flush(client, bytes, shown);
    }

    void flush(QLocalSocket* client, QByteArray& bytes, QStringList& shown) {
        if (client == nullptr || bytes.isEmpty())
            return;
        client->write(bytes);
        client->flush();
        note(QStringLiteral("> ") + shown.join('|'));
        bytes.clear();
        shown.clear();
    }

    QLocalServer m_server;
    QFile m_transcript;
    QHash<QString, QString> m_answers;
};

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QString name = QStringLiteral("PV3CommService");
    QString transcript;
    QString latest = QStringLiteral("1.0.6");
    QHash<QString, QString> given;
    const QStringList args = app.arguments().mid(1);
    for (int i = 0; i < args.size(); ++i) {
        const QString& arg = args[i];
        const QString value = i + 1 < args.size() ? args[i + 1] : QString();
        if (arg == QLatin1String("--name") && !value.isEmpty()) {
            name = value;
            ++i;
        } else if (arg == QLatin1String("--transcript") && !value.isEmpty()) {
            transcript = value;
            ++i;
        } else if (arg == QLatin1String("--latest") && !value.isEmpty()) {
            latest = value;
            ++i;
        } else if (arg == QLatin1String("--answer") && value.contains('=')) {
            const int equals = value.indexOf('=');
            given.insert(value.left(equals), value.mid(equals + 1));
            ++i;
        } else {
            std::fprintf(stderr, "usage: service_standin [--name NAME] [--transcript FILE] "
                                 "[--latest VERSION] [--answer REQUEST=ANSWER]...\n");
            return 2;
        }
    }
    const bool newer = latest != QLatin1String("1.0.6");
    QHash<QString, QString> answers = {
        {"HelloLauncher", "HelloClient"},
        {"@version", newer ? "FindUpdate" : "NoUpdate"},
        {"Version", latest},
        {"Download", "wait"},
        {"DownloadWaiting", "@sleep=1500|complete"},
        {"Report", "Send_Complete"},
    };
    for (auto it = given.cbegin(); it != given.cend(); ++it)
        answers.insert(it.key(), it.value());

    ServiceStandIn standIn(transcript, answers);
    if (!standIn.listen(name)) {
        std::fprintf(stderr, "service_standin: cannot listen as %s: %s\n", qPrintable(name),
                     qPrintable(standIn.errorString()));
        return 1;
    }
    std::printf("listening\n");
    std::fflush(stdout);
    return app.exec();
}
