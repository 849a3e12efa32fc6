// Whether the desktop asks for a light or a dark appearance, and when that changes.
// Thread: the main thread. The XDG desktop portal's "color-scheme" setting decides where there is one (asked without
// waiting); otherwise the application's palette does: dark when its window text is lighter than its window.
// Knows nothing of the program's own choice of appearance. Never sets the application's palette: it reads it.
#pragma once

#include <QObject>

#include <optional>

class QDBusVariant;

namespace Quorbel {

class SystemScheme final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SystemScheme)

public:
    explicit SystemScheme(QObject* parent = nullptr);

    bool isDark() const;

signals:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void portalSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void askPortal();
    void update();

    std::optional<bool> m_portal{};  ///< whether it asks for dark; nothing: no portal, or it states no preference
    bool m_wasDark = false;
};

}  // namespace Quorbel
