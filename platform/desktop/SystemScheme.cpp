#include "platform/desktop/SystemScheme.h"

#include <QDBusArgument>
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
// Desktops that have no such key in the group that they share.
constexpr auto gnomeGroup = "org.gnome.desktop.interface";

// Read() wraps its answer in one variant more than the signal and ReadAll() do.
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

// The portal's numbers: 0 no preference, 1 prefer dark, 2 prefer light.
std::optional<bool> isDarkInPortal(const QVariant& value)
{
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
    , m_told(wishes())
{
    qGuiApp->installEventFilter(this);
    askPortal();
}

bool SystemScheme::isDark() const
{
    return m_portal.value_or(isDarkPalette(QGuiApplication::palette()));
}

SystemScheme::Wishes SystemScheme::wishes() const
{
    return { isDark(), isContrastHigh(), isMotionReduced() };
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
    auto question = QDBusMessage::createMethodCall(QString::fromLatin1(portalService), QString::fromLatin1(portalPath),
        QString::fromLatin1(portalInterface), u"ReadAll"_s);
    question << QStringList{ QString::fromLatin1(appearanceGroup), QString::fromLatin1(gnomeGroup) };
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        listen();
        if (watcher->isError())  // no portal
            return;
        const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(watcher->reply().arguments().value(0));
        for (auto group = groups.cbegin(); group != groups.cend(); ++group)
            for (auto setting = group->cbegin(); setting != group->cend(); ++setting)
                take(group.key(), setting.key(), setting.value());
        update();
    });
}

// Once there was an answer: on a bus that was opened a moment ago Qt does not learn who the portal is, and would pass
// over all that it says.
void SystemScheme::listen()
{
    QDBusConnection::sessionBus().connect(QString::fromLatin1(portalService), QString::fromLatin1(portalPath),
        QString::fromLatin1(portalInterface), u"SettingChanged"_s, this,
        SLOT(portalSettingChanged(QString, QString, QDBusVariant)));
}

void SystemScheme::portalSettingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    take(group, key, value.variant());
    update();
}

void SystemScheme::take(const QString& group, const QString& key, const QVariant& value)
{
    const QVariant plain = unwrapped(value);
    const bool isShared = group == QLatin1String(appearanceGroup);
    if (isShared && key == u"color-scheme")
        m_portal = isDarkInPortal(plain);
    else if (isShared && key == u"contrast")
        m_isContrastHigh = plain.toUInt() == 1;
    else if (isShared && key == u"reduced-motion")
        m_isMotionReduced = plain.toUInt() == 1;
    else if (group == QLatin1String(gnomeGroup) && key == u"enable-animations")
        m_isAnimationOff = !plain.toBool();
}

void SystemScheme::update()
{
    if (std::exchange(m_told, wishes()) != m_told)
        emit changed();
}

}  // namespace Quorbel
