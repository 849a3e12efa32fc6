#include "platform/desktop/SystemScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr auto portalService = "org.freedesktop.portal.Desktop";
constexpr auto portalPath = "/org/freedesktop/portal/desktop";
constexpr auto portalInterface = "org.freedesktop.portal.Settings";
constexpr auto appearanceGroup = "org.freedesktop.appearance";
constexpr auto schemeKey = "color-scheme";

// The portal's numbers: 0 no preference, 1 prefer dark, 2 prefer light.
std::optional<bool> isDarkInPortal(QVariant value)
{
    // Read() wraps its answer in one variant more than the signal does.
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    switch (value.toUInt()) {
    case 1:
        return true;
    case 2:
        return false;
    default:
        return std::nullopt;
    }
}

// Whether the user has a bus: one that is named, or systemd's in the runtime folder.
bool hasSessionBus()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")
        || (!runtime.isEmpty() && QFileInfo::exists(runtime + u"/bus"_s));
}

// Dark when text is drawn lighter than the window behind it.
bool isDarkPalette(const QPalette& palette)
{
    const int text = palette.color(QPalette::Active, QPalette::WindowText).lightness();
    const int window = palette.color(QPalette::Active, QPalette::Window).lightness();
    return text > window;
}

}  // namespace

SystemScheme::SystemScheme(QObject* parent)
    : QObject(parent)
    , m_wasDark(isDark())
{
    qGuiApp->installEventFilter(this);
    askPortal();
}

bool SystemScheme::isDark() const
{
    return m_portal.value_or(isDarkPalette(QGuiApplication::palette()));
}

bool SystemScheme::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qGuiApp
        && (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::ThemeChange))
        update();
    return QObject::eventFilter(watched, event);
}

void SystemScheme::askPortal()
{
    // Without a bus, asking for one would start one, which takes longer than the whole window.
    if (!hasSessionBus())
        return;
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(QString::fromLatin1(portalService), QString::fromLatin1(portalPath),
        QString::fromLatin1(portalInterface), u"SettingChanged"_s, this,
        SLOT(portalSettingChanged(QString, QString, QDBusVariant)));
    auto question = QDBusMessage::createMethodCall(QString::fromLatin1(portalService), QString::fromLatin1(portalPath),
        QString::fromLatin1(portalInterface), u"Read"_s);
    question << QString::fromLatin1(appearanceGroup) << QString::fromLatin1(schemeKey);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (watcher->isError())  // no portal, or one that does not know the setting
            return;
        m_portal = isDarkInPortal(watcher->reply().arguments().value(0));
        update();
    });
}

void SystemScheme::portalSettingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group != QLatin1String(appearanceGroup) || key != QLatin1String(schemeKey))
        return;
    m_portal = isDarkInPortal(value.variant());
    update();
}

void SystemScheme::update()
{
    if (std::exchange(m_wasDark, isDark()) != m_wasDark)
        emit changed();
}

}  // namespace Quorbel
