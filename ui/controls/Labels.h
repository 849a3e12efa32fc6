// Texts: labels in a role colour, section headers, labelled dividers.
// Thread: the main thread.
#pragma once

#include "ui/controls/theme/Theme.h"

#include <QFont>
#include <QLabel>

namespace Quorbel {

/// A role of the theme, or a derived colour, to draw text in.
enum class TextRole { text, label, muted, amberText, selText, selSub };
QColor colorFor(const Theme& theme, TextRole role);

/// A QLabel whose colour and size follow the theme. Plain text. With eliding on, one line that ends in "…" where it
/// does not fit (the whole text is then its tooltip).
class ThemedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ThemedLabel(const QString& text = {}, TextRole role = TextRole::text, qreal points = 13,
        QFont::Weight weight = QFont::Normal, QWidget* parent = nullptr);
    /// One of several lines, broken between words.
    static ThemedLabel* wrapped(const QString& text, TextRole role, qreal points, QFont::Weight weight = QFont::Normal);
    void setRole(TextRole role);
    void setMono(bool mono);
    /// For names of files, tags and what somebody typed: every letter as it is.
    void setVerbatim(bool verbatim);
    void setItalic(bool italic);
    void setElided(bool elided);
    /// The height of one line in points; by default what the font says.
    void setLineHeight(qreal points);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    /// A line as it is to be drawn: names keep their order where one reads from right to left.
    QString drawn(const QString& line) const;

private:
    void restyle();

    TextRole m_role;
    qreal m_points;
    QFont::Weight m_weight;
    bool m_mono = false;
    bool m_verbatim = false;
    bool m_italic = false;
    bool m_elided = false;
    qreal m_lineHeight = 0;
};

/// A label that has something to say at times. With no text it keeps its room and is hidden: nobody reads it out.
template <typename Label>
void setTextOrNothing(Label& label, const QString& text)
{
    QSizePolicy policy = label.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    label.setSizePolicy(policy);
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

/// A section's title in small capitals, an optional note at the right, a hairline under both. 22 points high.
class SectionHeader final : public QWidget {
    Q_OBJECT

public:
    explicit SectionHeader(
        const QString& title, bool muted = false, const QString& trailingNote = {}, QWidget* parent = nullptr);
    void setNote(const QString& text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
    bool m_muted;
    QString m_note;
};

/// A caption in small capitals, a hairline filling the width, an optional note. 16 points high.
class LabeledDivider final : public QWidget {
    Q_OBJECT

public:
    explicit LabeledDivider(
        const QString& caption, bool muted = false, const QString& note = {}, QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_caption;
    bool m_muted;
    QString m_note;
};

/// The font of section titles and captions: 11 points, semibold, letters 5.5 % apart.
QFont sectionFont();

}  // namespace Quorbel
