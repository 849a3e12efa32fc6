// One field of a template: its name, what is done to it, its text or items, and a button that takes it out.
// Thread: the main thread. Shows a value and hands back what the user makes of it.
#pragma once

#include "core/templates/Template.h"
#include "core/tokens/TokenText.h"
#include "ui/controls/keywords/KeywordSuggestion.h"
#include "ui/controls/text/TypedCode.h"

#include <QWidget>

#include <functional>

class QGridLayout;

namespace Quorbel {

class ChoicePicker;
class KeywordEditor;
class TokenEdit;
class TokenPills;

class TemplateRow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TemplateRow)

public:
    using Completions = std::function<QList<KeywordSuggestion>(const QString& typed)>;

    TemplateRow(const TemplateField& field, Completions completions, QWidget* parent = nullptr);
    const TemplateField& field() const { return m_field; }
    /// The same field, with another text perhaps.
    void show(const TemplateField& field);
    /// What short codes in its text or items stand for.
    void setCodes(const CodeTexts& codes);
    /// The tokens under its text.
    void setPillsShown(bool on);
    /// Gives the keyboard to its text.
    void edit();
    /// Puts its parts behind this widget in the tab order; the last of them.
    QWidget* orderTabs(QWidget* before) const;
    /// Points of the columns, so that what stands above lines up.
    static constexpr qreal labelWidth = 92;
    static constexpr qreal modeWidth = 116;
    static constexpr qreal gap = 7;
    static constexpr qreal stackedBelow = 480;  ///< the text of a narrower one is below its name

    /// Points between what is one below the other.
    static constexpr qreal lineGap = 6;

signals:
    void changed(const Quorbel::TemplateField& field);
    void removed();
    /// Its text has the keyboard.
    void focused();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeText();
    QWidget* makeItems(const Completions& completions);
    void change(const TemplateField& field);
    void placeText();
    void openToken(int position);

    TemplateField m_field;
    QGridLayout* m_grid;
    QString m_title;  ///< of the field
    ChoicePicker* m_mode;
    QWidget* m_remove;
    TokenEdit* m_text = nullptr;
    KeywordEditor* m_items = nullptr;
    TokenPills* m_pills = nullptr;
    bool m_isStacked = false;
};

}  // namespace Quorbel
