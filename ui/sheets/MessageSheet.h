// A sheet that says something and offers a few answers. Thread: the main thread.
#pragma once

#include "ui/sheets/Sheet.h"

#include <QStringList>

#include <functional>

namespace Quorbel {

class QBButton;

class MessageSheet final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MessageSheet)

public:
    /// The first button is the default one; Escape is the last. `icon` is a symbol's name.
    MessageSheet(const QString& icon, const QString& message, const QString& informativeText,
        const QStringList& buttons, QWidget* parent = nullptr);

    void confirm() override;
    void cancel() override;

signals:
    /// The position in `buttons` of the one chosen. Whoever presented the sheet dismisses it.
    void answered(qsizetype button);

private:
    QList<QBButton*> makeButtons(const QStringList& titles);

    qsizetype m_last;
};

class SheetHost;
/// Presents a message and dismisses it with its answer, which is then handed to `answered` (may be empty).
void presentMessage(SheetHost& host, const QString& icon, const QString& message, const QString& informativeText,
    const QStringList& buttons, const std::function<void(qsizetype)>& answered);

}  // namespace Quorbel
