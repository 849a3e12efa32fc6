#include "core/UpdateChecker.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <limits>
#include <memory>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

const QByteArray validFeed = R"({"version": "0.1", "build": 8, "url": "https://host/x", "later": [1]})";

QByteArray response(const QByteArray& status, const QByteArray& body)
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

// Answers every request on loopback with the same bytes and hangs up; with none it keeps the caller waiting.
class FeedServer : public QTcpServer {
public:
    explicit FeedServer(const QByteArray& answer)
    {
        connect(this, &QTcpServer::newConnection, this, [this, answer] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::disconnected, this, [this] { ++hangUps; });
            connect(socket, &QTcpSocket::readyRead, this, [this, socket, answer] {
                request += socket->readAll();
                if (answer.isEmpty() || !request.endsWith("\r\n\r\n"))
                    return;
                socket->write(answer);
                socket->disconnectFromHost();
            });
        });
        listen(QHostAddress::LocalHost);
    }
    QUrl url() const { return QUrl(u"http://127.0.0.1:%1/quorbel/appcast.json"_s.arg(serverPort())); }

    QByteArray request{};
    int hangUps = 0;
};

// "available", "upToDate" or "failed: " and the reason.
QString describe(const UpdateCheckResult& result)
{
    if (const auto* failure = std::get_if<UpdateCheckResult::Failed>(&result.outcome))
        return u"failed: "_s + failure->error;
    return std::holds_alternative<UpdateCheckResult::Available>(result.outcome) ? u"available"_s : u"upToDate"_s;
}

QString checked(const QUrl& url, qint64 currentBuild)
{
    QNetworkAccessManager session;
    QObject context;
    QStringList outcomes;
    UpdateChecker::check(url, currentBuild, session, &context,
        [&outcomes](const UpdateCheckResult& result) { outcomes.append(describe(result)); });
    if (!QTest::qWaitFor([&outcomes] { return !outcomes.isEmpty(); }, 30'000))
        return u"no answer"_s;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return outcomes.join(u'|');
}

}  // namespace

class tst_UpdateChecker : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void decoding()
    {
        const UpdateManifest plain = UpdateChecker::decode(validFeed);
        QCOMPARE(plain, (UpdateManifest{ u"0.1"_s, 8, u"https://host/x"_s, std::nullopt }));
        const UpdateManifest full =
            UpdateChecker::decode(R"({"version": "2", "build": 9223372036854775807, "url": "", "notes": "Zürich"})");
        QCOMPARE(full.build, std::numeric_limits<qint64>::max());
        QCOMPARE(full.notes, u"Zürich"_s);
        QCOMPARE(
            UpdateChecker::decode(R"({"version": "", "build": -1, "url": "", "notes": null})").notes, std::nullopt);
    }

    void refusedFeeds_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut short") << validFeed.chopped(1);
        QTest::newRow("array") << QByteArray("[" + validFeed + "]");
        for (const char* member : { "version", "build", "url" })
            QTest::newRow(qPrintable(u"without "_s + QLatin1String(member)))
                << QByteArray(validFeed).replace(member, "other");
        for (const char* build : { "\"8\"", "8.5", "1e30", "9223372036854775808", "true", "null" })
            QTest::newRow(qPrintable(u"build "_s + QLatin1String(build))) << QByteArray(validFeed).replace("8", build);
        QTest::newRow("version a number") << QByteArray(validFeed).replace("\"0.1\"", "0.1");
        QTest::newRow("notes a list") << QByteArray(validFeed).replace("later", "notes");
    }
    void refusedFeeds()
    {
        QFETCH(QByteArray, body);
        QVERIFY_THROWS_EXCEPTION(Error, UpdateChecker::decode(body));
    }

    void checking_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<qint64>("currentBuild");
        QTest::addColumn<QString>("outcome");
        QTest::newRow("higher build") << response("200 OK", validFeed) << qint64(7) << u"^available$"_s;
        QTest::newRow("equal build") << response("200 OK", validFeed) << qint64(8) << u"^upToDate$"_s;
        QTest::newRow("another success") << response("203 Elsewhere", validFeed) << qint64(7) << u"^available$"_s;
        QTest::newRow("not found, valid body")
            << response("404 Not Found", validFeed) << qint64(9) << u"^failed: Bad server response.*404"_s;
        QTest::newRow("not modified") << response("304 Not Modified", "") << qint64(9) << u"^failed: .*304"_s;
        QTest::newRow("a page instead") << response("200 OK", "<html>") << qint64(9) << u"^failed: .*JSON"_s;
        QTest::newRow("mistyped build") << response("200 OK", QByteArray(validFeed).replace("8", "\"8\"")) << qint64(9)
                                        << u"^failed: .*build"_s;
        QTest::newRow("hung up early") << response("200 OK", validFeed).chopped(1) << qint64(9) << u"^failed: "_s;
    }
    void checking()
    {
        QFETCH(QByteArray, answer);
        QFETCH(qint64, currentBuild);
        QFETCH(QString, outcome);
        FeedServer server(answer);
        const QString result = checked(server.url(), currentBuild);
        QVERIFY2(QRegularExpression(outcome).match(result).hasMatch(), qPrintable(result));
        QVERIFY(server.request.startsWith("GET /quorbel/appcast.json HTTP"));
        QCOMPARE(server.request.count("GET "), 1);
    }

    void nobodyListens()
    {
        FeedServer server({});
        const QUrl url = server.url();
        server.close();
        QVERIFY(checked(url, 1).startsWith(u"failed: "_s));
    }

    void dyingContextEndsTheTransfer()
    {
        FeedServer server({});
        QNetworkAccessManager session;
        auto context = std::make_unique<QObject>();
        bool called = false;
        UpdateChecker::check(
            server.url(), 1, session, context.get(), [&called](const UpdateCheckResult&) { called = true; });
        QTRY_VERIFY(server.request.endsWith("\r\n\r\n"));
        context.reset();
        QTRY_COMPARE(server.hangUps, 1);
        QVERIFY(!called);
        QTRY_VERIFY(session.findChildren<QNetworkReply*>().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_UpdateChecker)
#include "tst_UpdateChecker.moc"
