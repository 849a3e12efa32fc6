// What the desktop asks for through the settings portal: a bus and a portal of the test's own.
#include "platform/desktop/SystemScheme.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

using Settings = QMap<QString, QVariantMap>;
Q_DECLARE_METATYPE(Settings)

namespace {

const QString appearance = u"org.freedesktop.appearance"_s;
const QString gnome = u"org.gnome.desktop.interface"_s;

class Portal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Settings settings{};

    void change(const QDBusConnection& bus, const QString& group, const QString& key, const QVariant& value)
    {
        auto signal = QDBusMessage::createSignal(
            u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        bus.send(signal);
        bus.interface()->isServiceRegistered(u"org.example"_s);  // an answer comes after all that was sent before
    }

public slots:
    Settings ReadAll(const QStringList& groups)
    {
        Settings asked;
        for (const QString& group : groups)
            if (settings.contains(group))
                asked.insert(group, settings.value(group));
        return asked;
    }
};

}  // namespace

class tst_SystemScheme : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void theDesktopIsAsked_data();
    void theDesktopIsAsked();

private:
    QProcess m_daemon;
    Portal m_portal;
    std::unique_ptr<QDBusConnection> m_bus;
};

void tst_SystemScheme::initTestCase()
{
    if (QStandardPaths::findExecutable(u"dbus-daemon"_s).isEmpty())
        QSKIP("no dbus-daemon here");
    qDBusRegisterMetaType<Settings>();
    QGuiApplication::setPalette(QPalette(Qt::white));  // light, as long as nobody says otherwise
    m_daemon.start(u"dbus-daemon"_s, { u"--session"_s, u"--nofork"_s, u"--print-address"_s });
    QVERIFY(m_daemon.waitForStarted());
    QVERIFY(m_daemon.waitForReadyRead());
    const QByteArray address = m_daemon.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    m_bus = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(QString::fromLatin1(address), u"portal"_s));
    QVERIFY(m_bus->registerService(u"org.freedesktop.portal.Desktop"_s));
    QVERIFY(m_bus->registerObject(u"/org/freedesktop/portal/desktop"_s, &m_portal, QDBusConnection::ExportAllSlots));
}

void tst_SystemScheme::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(u"portal"_s);
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

void tst_SystemScheme::theDesktopIsAsked_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("on");
    QTest::addColumn<QVariant>("off");
    QTest::addColumn<bool (SystemScheme::*)() const>("asked");
    QTest::newRow("dark") << appearance << u"color-scheme"_s << QVariant(1U) << QVariant(2U) << &SystemScheme::isDark;
    QTest::newRow("high contrast") << appearance << u"contrast"_s << QVariant(1U) << QVariant(0U)
                                   << &SystemScheme::isContrastHigh;
    QTest::newRow("less motion") << appearance << u"reduced-motion"_s << QVariant(1U) << QVariant(0U)
                                 << &SystemScheme::isMotionReduced;
    QTest::newRow("no animations") << gnome << u"enable-animations"_s << QVariant(false) << QVariant(true)
                                   << &SystemScheme::isMotionReduced;
}

void tst_SystemScheme::theDesktopIsAsked()
{
    using Asked = bool (SystemScheme::*)() const;
    QFETCH(QString, group);
    QFETCH(QString, key);
    QFETCH(QVariant, on);
    QFETCH(QVariant, off);
    QFETCH(Asked, asked);
    // At the start …
    m_portal.settings = { { group, { { key, on } } } };
    SystemScheme scheme;
    QSignalSpy changes(&scheme, &SystemScheme::changed);
    QVERIFY(!(scheme.*asked)());
    QTRY_VERIFY((scheme.*asked)());
    QCOMPARE(changes.size(), 1);
    // … and whenever it changes.
    m_portal.change(*m_bus, group, key, off);
    QTRY_VERIFY(!(scheme.*asked)());
    m_portal.change(*m_bus, u"org.example"_s, key, on);
    m_portal.change(*m_bus, group, key, on);
    QTRY_VERIFY((scheme.*asked)());
    QCOMPARE(changes.size(), 3);
}

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    tst_SystemScheme test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_SystemScheme.moc"
