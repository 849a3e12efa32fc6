// Keywords as chips, with an entry behind them.
// Thread: the main thread. The chips belong to the owner: the editor asks with added() and removed() and shows what
// setChips() then says.
#pragma once

#include "ui/controls/keywords/KeywordSuggestion.h"
#include "ui/controls/text/TypedCode.h"

#include <QMap>
#include <QStringList>
#include <QWidget>

#include <functional>

class QLineEdit;

namespace Quorbel {

class FlowLayout;
class KeywordChip;
class KeywordEntry;
class SuggestionList;
class HoverFade;

class KeywordEditor final : public QWidget {
    Q_OBJECT

public:
    /// What fits the text as it is typed, best first.
    using Completions = std::function<QList<KeywordSuggestion>(const QString& typed)>;
    /// Of each keyword that stands in a tree, the parents of each of its paths, from the top down.
    using Parents = QMap<QString, QList<QStringList>>;

    explicit KeywordEditor(QWidget* parent = nullptr);
    ~KeywordEditor() override;

    const QStringList& chips() const { return m_chips; }
    const Parents& parents() const { return m_parents; }
    /// The parents of a chip's first path stand in front of it while all chips fit two lines so; the tooltip tells of
    /// all paths.
    void setChips(const QStringList& chips, const Parents& parents = {});
    /// Draws the chips in amber: they will be added to all selected photos.
    void setAmber(bool amber);
    /// The edited look of the whole frame.
    void setEdited(bool edited);
    /// As QBTextField::setWanted(): while there are no chips.
    void setWanted(bool wanted);
    void setPlaceholder(const QString& text);
    void setCompletions(Completions completions);
    /// Whether a paste with commas is several; one with several lines always is. On unless turned off.
    void setSplitsAtCommas(bool on);
    /// As QBTextField::setCodes(), of the entry.
    void setCodes(const CodeTexts& codes);
    /// Where one types: what takes the keyboard. No focus proxy of the editor: Qt gives Tab to a widget with a proxy
    /// as well, at the place where it was made.
    QLineEdit* entry() const;
    void clearEntry();
    /// What stands in the entry is added, as by Return.
    void commit();
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// It fixes its own height to what its width asks for.
    bool hasHeightForWidth() const override { return false; }

signals:
    /// A keyword as it was typed, trimmed and not empty, or what was chosen. Whether one that is there already is added
    /// again is the owner's decision.
    void added(const QString& keyword);
    void removed(const QString& keyword);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool entryKey(QKeyEvent* event);
    bool chipKey(int index, QKeyEvent* event);
    void makeChip();
    void showChips();
    void layOutChips();
    bool hasRoomForParents(int line) const;
    bool isThere(const KeywordSuggestion& suggestion) const;
    void focusChip(int index);
    /// False when there is none.
    bool focusLastChip();
    void addAll(const QStringList& keywords);
    void complete();
    void acceptCompletion(int row);
    void removeChip(int index);
    void updateHeight();

    QStringList m_chips;
    Parents m_parents;
    QStringList m_offered;  ///< what the rows of the suggestions add
    QList<KeywordChip*> m_chipWidgets;
    FlowLayout* m_flow;
    KeywordEntry* m_entry;
    SuggestionList* m_suggestions;
    HoverFade* m_fade;
    QObject* m_ring = nullptr;
    Completions m_completions;
    bool m_amber = false;
    bool m_edited = false;
    bool m_wanted = false;
};

}  // namespace Quorbel
