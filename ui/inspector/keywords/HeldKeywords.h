// The chips of the keywords that the selected photos hold, under the field that gives keywords to all of them.
// Thread: the main thread. Shows the model and calls it.
#pragma once

#include "app/model/selection/SelectedKeywords.h"
#include "ui/controls/keywords/HeldKeywordChip.h"

#include <QWidget>

namespace Quorbel {

class AppModel;
class SubRow;
class WalkedFlow;

class HeldKeywords final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HeldKeywords)

public:
    HeldKeywords(AppModel& model, QWidget* parent);
    /// Hidden while there is nothing to show.
    SubRow* row() const { return m_row; }
    QList<QWidget*> tabStops() const;
    void refresh();

private:
    QList<HeldKeyword> wanted(int most, int& beyond) const;
    HeldKeyword held(const KeywordCount& count, bool isGone) const;
    HeldKeywordChip* chipAt(qsizetype i);
    void choose(const HeldKeyword& held);
    void cross(const HeldKeyword& held);
    void open();

    AppModel& m_model;
    WalkedFlow* m_flow;
    SubRow* m_row;
    QBTextButton* m_more;
    QList<HeldKeywordChip*> m_chips;  ///< made so far
    QList<HeldKeyword> m_shown;
    QSet<QUrl> m_photos;  ///< of which they are
    int m_most;  ///< chips, of those that there are
    bool m_isOpen = false;  ///< beyond the first lines
};

}  // namespace Quorbel
