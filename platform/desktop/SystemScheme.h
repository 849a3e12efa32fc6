// Whether the desktop asks for a light or a dark appearance, for high contrast and for less motion, and when that
// changes.
// Thread: the main thread. The settings of the XDG desktop portal decide where there is one (asked without waiting).
// Without, the application's palette tells dark (its window text is lighter than its window), and nobody asks for high
// contrast or less motion.
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
    bool isContrastHigh() const { return m_isContrastHigh; }
    bool isMotionReduced() const { return m_isMotionReduced || m_isAnimationOff; }

signals:
    /// Of any of the three.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void portalSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    struct Wishes {
        bool dark = false;
        bool contrast = false;
        bool lessMotion = false;
        bool operator==(const Wishes&) const = default;
    };

    Wishes wishes() const;
    void askPortal();
    void listen();
    void take(const QString& group, const QString& key, const QVariant& value);
    void update();

    std::optional<bool> m_portal{};  ///< whether it asks for dark; nothing: no portal, or it states no preference
    bool m_isContrastHigh = false;
    bool m_isMotionReduced = false;
    bool m_isAnimationOff = false;
    Wishes m_told{};
};

}  // namespace Quorbel
