// Whether the desktop asks for a light or a dark appearance, and when that changes.
// Thread: the main thread. The XDG desktop portal's "color-scheme" setting decides where there is one (asked without
// waiting); otherwise the application's palette does: dark when its window text is lighter than its window.
// Knows nothing of the program's own choice of appearance. Never sets the application's palette: it reads it.
#pragma once

#include <QObject>

#include <optional>

class QDBusVariant;
class QPalette;

namespace Quorbel {

enum class ColorScheme;  // AppModel's

class SystemScheme final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SystemScheme)

public:
    explicit SystemScheme(QObject* parent = nullptr);

    ColorScheme scheme() const;

signals:
    void schemeChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void portalSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void askPortal();
    void update();

    std::optional<ColorScheme> m_portal{};  ///< nothing: no portal, or it states no preference
    ColorScheme m_known{};
};

/// Dark when text is drawn lighter than the window behind it.
ColorScheme schemeOf(const QPalette& palette);

}  // namespace Quorbel
