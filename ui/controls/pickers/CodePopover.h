// The codes of a picker, to look through and to pick from.
// Thread: the main thread. What is held, and what picking does to it, the picker knows.
#pragma once

#include "ui/controls/attached/SearchPopover.h"
#include "ui/controls/pickers/CodeSource.h"

#include <QStringList>

namespace Quorbel {

/// What fits what one typed, with its letters in bold, and how many that are. As high as what was found; where it
/// opened above its picker as high as at first, or the field would move under what one types. Where any text may be
/// picked, the last row is what one typed, unless it is one of the others.
class CodePopover final : public SearchPopover {
    Q_OBJECT

public:
    static constexpr int mostRows = 6;

    /// `held` have check marks, and those that the source does not know rows of their own. With `clears` the first row
    /// stands for no code.
    CodePopover(const QString& name, CodeSource source, const QStringList& held, bool clears, QWidget* opener);
    /// Opens at a picker.
    void openAt(const QWidget& picker);

signals:
    /// "" for none.
    void picked(const QString& code);

protected:
    int heightIn(int width) override;
    int find(const QString& typed) override;
    void pick(int row) override;
    int pageRows() const override { return mostRows; }
    int roomBelow() const override;
    void paintEvent(QPaintEvent* event) override;

private:
    QList<CodeRow> rowsFor(const QString& typed);
    void add(const CodeRow& row, const QString& typed);
    int rowHeight() const;

    CodeSource m_source;
    QStringList m_held;
    bool m_clears;
    QList<CodeRow> m_unknown;  ///< of those held
    QList<CodeRow> m_rows;
    qsizetype m_all = 0;  ///< that the source has
    qsizetype m_found = 0;  ///< of these
    bool m_hasNotes = false;
    int m_rowsAtFirst = 0;
};

}  // namespace Quorbel
