// The setting of the file of codes: which file, how many codes it has, and what is wrong in it.
// Thread: the main thread. Shows the model's codes and calls them.
#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

class QVBoxLayout;

namespace Quorbel {

class CodeReplacements;
class QBButton;
class ThemedLabel;
class WrappedLine;

class CodeFileRow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CodeFileRow)

public:
    /// The codes must outlive this.
    explicit CodeFileRow(CodeReplacements& codes, QWidget* parent = nullptr);

private:
    void refresh();
    QStringList states() const;

    CodeReplacements& m_codes;
    ThemedLabel* m_name;
    QBButton* m_choose;
    QBButton* m_clear;
    QList<WrappedLine*> m_states;  ///< a line of what is known each, made as they are needed
    QVBoxLayout* m_column;
};

}  // namespace Quorbel
