// Buttons: text buttons of four kinds, icon buttons, flat text buttons and token chips. All extend QAbstractButton and
// so keep its keyboard, focus and accessibility; clicked() is the action.
// Thread: the main thread. They know nothing of what they do.
#pragma once

#include <QAbstractButton>

namespace Quorbel {

class HoverFade;
enum class TextRole;

/// What all our buttons share: hover and pressed shades, a focus ring for keyboard focus, restyling.
class ThemedButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit ThemedButton(const QString& text, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    HoverFade* fade() const { return m_fade; }
    /// 1, or the opacity of a disabled control.
    qreal opacity(qreal whenDisabled = .42) const;

private:
    HoverFade* m_fade;
};

enum class QBButtonKind { primary, secondary, dashed, destructive };

/// A rounded text button, 30 points high. Disabled: reacts to nothing and is drawn dimmed.
class QBButton final : public ThemedButton {
    Q_OBJECT

public:
    explicit QBButton(const QString& title, QBButtonKind kind = QBButtonKind::secondary, QWidget* parent = nullptr);
    /// Points between the border and the title; 16 for primary, 14 otherwise, unless set here ("Now" takes 11).
    void setSidePadding(qreal points);
    /// 22 points high, in 11.5-point type: inside a row of a list.
    void setSmall(bool on);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void restyle();
    qreal radius() const { return m_small ? 6 : 7; }

    QBButtonKind m_kind;
    qreal m_sidePadding = -1;
    bool m_small = false;
};

/// A square with an icon; its name is its tooltip and its accessible name. 32×30 points unless given another size.
class QBIconButton final : public ThemedButton {
    Q_OBJECT

public:
    QBIconButton(const QString& icon, const QString& name, QWidget* parent = nullptr);
    void setIcon(const QString& icon);
    /// Also the tooltip.
    void setName(const QString& name);
    /// A sentence for the tooltip, below the name; "" for none.
    void setHint(const QString& hint);
    /// Points of the button and of the icon in it; line width in the icon's own 24×24 drawing (0: as drawn).
    void setSizes(QSizeF button, qreal icon, qreal stroke = 0, qreal radius = 7);
    /// Keeps the hover ground while what the button stands for is shown.
    void setHighlighted(bool on);
    /// Drawn in `muted` at rest instead of `label`: small crosses inside other things.
    void setQuiet(bool on);
    /// Drawn in amber at rest: the cross of an amber chip.
    void setAmber(bool on);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_icon;
    QSizeF m_buttonSize{ 32, 30 };
    qreal m_iconSize = 18;
    qreal m_stroke = 0;
    qreal m_radius = 7;
    bool m_highlighted = false;
    bool m_quiet = false;
    bool m_amber = false;
};

/// A flat text button in 12-point type, with an optional key ("Ctrl+A") after its title; 26 points high.
class QBTextButton final : public ThemedButton {
    Q_OBJECT

public:
    explicit QBTextButton(const QString& title, QWidget* parent = nullptr);
    void setKeyHint(const QString& keys);
    /// An icon of 10 points before the title ("plus"); none when empty.
    void setLeadingIcon(const QString& icon);
    /// An icon of 12 points behind the title: it opens a menu.
    void setTrailingIcon(const QString& icon);
    /// Drawn as a link: no ground, underlined, no side padding.
    void setLink(bool on);
    /// Drawn as a part of a line of text: no ground, no side padding, medium weight, 17 points high.
    void setInline(bool on);
    /// What the title of an inline one is drawn in.
    void setRole(TextRole role);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool hasGround() const { return !m_link && !m_inline; }

    QString m_keys;
    QString m_icon;
    QString m_trailing;
    bool m_link = false;
    bool m_inline = false;
    TextRole m_role{};
};

/// A capsule that inserts something: the tokens of a rename pattern, quick keywords. 26 points high.
class TokenChip final : public ThemedButton {
    Q_OBJECT

public:
    explicit TokenChip(const QString& title, QWidget* parent = nullptr);
    /// A short hint behind the title: the digit of its key.
    void setKeyHint(const QString& key);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_key;
};

}  // namespace Quorbel
