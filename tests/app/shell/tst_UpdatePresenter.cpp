// Update checks against a web server of the test's own on the loopback interface.
#include "app/shell/UpdatePresenter.h"

#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

// Answers every request with the same status and body, and counts them.
class FeedServer : public QTcpServer {
public:
    FeedServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                if (!socket->readAll().contains("\r\n\r\n"))
                    return;
                ++requests;
                socket->write("HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
                    + "\r\nConnection: close\r\n\r\n" + body);
                socket->disconnectFromHost();
            });
        });
    }
    QUrl url() const { return QUrl(u"http://127.0.0.1:%1/feed.json"_s.arg(serverPort())); }

    QByteArray status = "200 OK";
    QByteArray body;
    int requests = 0;
};

QByteArray feed(int build, const QByteArray& url = "https://example.org/get")
{
    return R"({"version":"2.0","build":)" + QByteArray::number(build) + R"(,"url":")" + url + R"("})";
}

}  // namespace

class tst_UpdatePresenter : public QObject {
    Q_OBJECT

private slots:
    void init();
    void automaticChecks_data();
    void automaticChecks();
    void manualChecks_data();
    void manualChecks();
    void onlyHttpsIsOpened_data();
    void onlyHttpsIsOpened();
    void withoutAHostNothingIsFetched();
    void buildNumbers();

private:
    std::unique_ptr<UpdatePresenter> presenter(const QUrl& url);
    QString recorded() const { return m_defaults->value(UpdatePresenter::lastCheckKey()).toString(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<QSettings> m_defaults;
    std::unique_ptr<FeedServer> m_server;
    QDateTime m_now;
    QList<Notice> m_notices;
    qsizetype m_press = 0;  // the button that the user presses on every notice
    QList<QUrl> m_opened;
};

void tst_UpdatePresenter::init()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    m_folder = std::make_unique<QTemporaryDir>();
    m_defaults = std::make_shared<QSettings>(m_folder->filePath(u"s.ini"_s), QSettings::IniFormat);
    m_server = std::make_unique<FeedServer>();
    m_now = QDateTime(QDate(2026, 3, 29), QTime(12, 0));
    m_notices.clear();
    m_opened.clear();
    m_press = 0;
}

std::unique_ptr<UpdatePresenter> tst_UpdatePresenter::presenter(const QUrl& url)
{
    return std::make_unique<UpdatePresenter>(url, 10,
        UpdatePresenterServices{ m_defaults, [this] { return m_now; },
            [this](const Notice& notice, const std::function<void(qsizetype)>& answered) {
                m_notices.append(notice);
                if (answered)
                    answered(m_press);
            },
            [this](const QUrl& address) { m_opened.append(address); } });
}

void tst_UpdatePresenter::automaticChecks_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("secondsSinceLast");  // -1: never checked
    QTest::addColumn<bool>("fetches");
    QTest::addColumn<bool>("records");
    QTest::addColumn<int>("notices");

    QTest::newRow("first start, newer") << QByteArray("200 OK") << feed(11) << -1 << true << true << 1;
    QTest::newRow("first start, same") << QByteArray("200 OK") << feed(10) << -1 << true << true << 0;
    QTest::newRow("first start, server broken") << QByteArray("500 No") << feed(11) << -1 << true << false << 0;
    QTest::newRow("first start, garbage") << QByteArray("200 OK") << QByteArray("<html>") << -1 << true << false << 0;
    QTest::newRow("a second short of a day") << QByteArray("200 OK") << feed(11) << 86'399 << false << false << 0;
    QTest::newRow("a day") << QByteArray("200 OK") << feed(11) << 86'400 << true << true << 1;
}

void tst_UpdatePresenter::automaticChecks()
{
    QFETCH(QByteArray, status);
    QFETCH(QByteArray, body);
    QFETCH(int, secondsSinceLast);
    QFETCH(bool, fetches);
    QFETCH(bool, records);
    QFETCH(int, notices);
    m_server->status = status;
    m_server->body = body;
    if (secondsSinceLast >= 0)
        m_defaults->setValue(
            UpdatePresenter::lastCheckKey(), m_now.addSecs(-secondsSinceLast).toUTC().toString(Qt::ISODate));
    const QString before = recorded();

    const auto updates = presenter(m_server->url());
    updates->checkAutomatically();
    if (fetches) {
        QTRY_COMPARE(m_server->requests, 1);
        QTRY_COMPARE(recorded() != before, records);
    }
    QTest::qWait(50);  // for what must not come
    QCOMPARE(m_server->requests, fetches ? 1 : 0);
    QCOMPARE(recorded() != before, records);
    QCOMPARE(m_notices.size(), notices);
}

void tst_UpdatePresenter::manualChecks_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("buttons");

    const QByteArray ok = "200 OK";
    QTest::newRow("newer, without notes")
        << ok << feed(11) << u"Quorbel 2.0 is available"_s << u"A newer version of Quorbel is available."_s << 2;
    QTest::newRow("newer, with notes") << ok
                                       << QByteArray(
                                              R"({"version":"2.0","build":11,"url":"https://x","notes":"Faster."})")
                                       << u"Quorbel 2.0 is available"_s << u"Faster."_s << 2;
    QTest::newRow("same") << ok << feed(10) << u"You're up to date"_s << u"Quorbel is running the latest version."_s
                          << 1;
    QTest::newRow("not found, though the body is a feed")
        << QByteArray("404 Not Found") << feed(11) << u"Couldn't check for updates"_s
        << u"Please check your internet connection and try again."_s << 1;
}

// Whatever was recorded and whatever comes out, a manual check fetches, records and speaks.
void tst_UpdatePresenter::manualChecks()
{
    QFETCH(QByteArray, status);
    QFETCH(QByteArray, body);
    QFETCH(QString, message);
    QFETCH(QString, text);
    QFETCH(int, buttons);
    m_server->status = status;
    m_server->body = body;
    m_press = 1;
    m_defaults->setValue(UpdatePresenter::lastCheckKey(), m_now.addSecs(-5).toUTC().toString(Qt::ISODate));
    const QString before = recorded();

    const auto updates = presenter(m_server->url());
    updates->checkManually();
    QTRY_COMPARE(m_notices.size(), 1);
    QCOMPARE(m_notices.first().message, message);
    QCOMPARE(m_notices.first().informativeText, text);
    QCOMPARE(m_notices.first().buttons.size(), buttons);
    QVERIFY(recorded() != before);
    QVERIFY(m_opened.isEmpty());
}

void tst_UpdatePresenter::onlyHttpsIsOpened_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<qsizetype>("pressed");
    QTest::addColumn<bool>("opens");

    QTest::newRow("https, Download") << QByteArray("https://example.org/get") << qsizetype(0) << true;
    QTest::newRow("https, Later") << QByteArray("https://example.org/get") << qsizetype(1) << false;
    QTest::newRow("http") << QByteArray("http://example.org/get") << qsizetype(0) << false;
    QTest::newRow("a program") << QByteArray("file:///usr/bin/true") << qsizetype(0) << false;
    QTest::newRow("no URL") << QByteArray("https://exa mple") << qsizetype(0) << false;
    QTest::newRow("no scheme") << QByteArray("example.org/get") << qsizetype(0) << false;
}

void tst_UpdatePresenter::onlyHttpsIsOpened()
{
    QFETCH(QByteArray, address);
    QFETCH(qsizetype, pressed);
    QFETCH(bool, opens);
    m_press = pressed;
    m_server->body = feed(11, address);
    const auto updates = presenter(m_server->url());
    updates->checkManually();
    QTRY_COMPARE(m_notices.size(), 1);
    QCOMPARE(m_opened.size(), opens ? 1 : 0);
}

void tst_UpdatePresenter::withoutAHostNothingIsFetched()
{
    QVERIFY(UpdatePresenter::feedURL({}).isEmpty());
    QCOMPARE(UpdatePresenter::feedURL(u"example.org"_s), QUrl(u"https://example.org/quorbel/appcast.json"_s));
    const auto updates = presenter({});
    updates->checkAutomatically();
    QTest::qWait(50);
    QVERIFY(recorded().isEmpty());
}

void tst_UpdatePresenter::buildNumbers()
{
    QCOMPARE(UpdatePresenter::buildNumber(u"412"_s), 412);
    QCOMPARE(UpdatePresenter::buildNumber({}), 0);
    QCOMPARE(UpdatePresenter::buildNumber(u"1.2"_s), 0);
}

QTEST_GUILESS_MAIN(tst_UpdatePresenter)
#include "tst_UpdatePresenter.moc"
