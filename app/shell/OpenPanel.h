// The panel in which folders and image files are chosen, several at once, or one folder or text file alone. Thread: the
// main thread.
#pragma once

#include <QFileDialog>
#include <QUrl>

#include <functional>

namespace Quorbel {

/// Qt's own dialog, not the desktop's: no desktop's dialog takes files and folders alike. Open takes what is selected,
/// or the folder that is shown when nothing is.
class OpenPanel final : public QFileDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(OpenPanel)

public:
    enum class Choice {
        any,  ///< folders and image files, several
        folder,
        text,  ///< one file of codes
    };

    OpenPanel(Choice choice, QWidget* parent);

    /// Shows the panel over the window and returns at once; `chosen` is called with what was chosen, or with nothing
    /// on cancel. The panel deletes itself.
    static void open(QWidget* window, const struct Theme& theme, Choice choice,
        const std::function<void(const QList<QUrl>&)>& chosen);

protected:
    void accept() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isGood(const QString& path) const;

    Choice m_choice;
    QStringList m_paths{};  ///< what was accepted
};

}  // namespace Quorbel
