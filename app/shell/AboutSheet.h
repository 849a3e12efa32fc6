// Version, licences and the credits of the data that the program ships. Thread: the main thread.
#pragma once

#include "ui/sheets/Sheet.h"

namespace Quorbel {

class AboutSheet final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AboutSheet)

public:
    /// `credits`: lines of text about the place data; may be empty.
    explicit AboutSheet(const QString& credits, QWidget* parent = nullptr);

    QString title() const override;
    void confirm() override { emit closed(); }
    void cancel() override { emit closed(); }

signals:
    void closed();
};

}  // namespace Quorbel
