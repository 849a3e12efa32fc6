// The sheets that the model opens and closes: each follows a flag of it. Thread: the main thread. Shows AppModel;
// knows no sheet from the inside.
#pragma once

#include <QObject>

#include <deque>
#include <functional>

namespace Quorbel {

class AppModel;
struct ContentFactories;
class SheetBody;
class SheetHost;

class ModelSheets final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ModelSheets)

public:
    /// A sheet without a factory is never shown. The model and the host outlive this.
    ModelSheets(AppModel& model, SheetHost* host, const ContentFactories& factories, QObject* parent);

private:
    using Factory = std::function<SheetBody*()>;
    struct Sheet {
        std::function<bool()> isOpen{};
        Factory make{};
        SheetBody* shown = nullptr;
    };

    template <typename Sender, typename Signal>
    void add(const Sender& sender, Signal changed, const std::function<bool()>& isOpen, const Factory& make);
    void follow(Sheet& sheet);

    SheetHost* m_host;
    std::deque<Sheet> m_sheets;  ///< in which each stays where it is
};

}  // namespace Quorbel
