// The list of templates at the left of their sheet: chosen by mouse or keys, dragged out as files, files dropped in.
// Thread: the main thread. Shows the model and calls it.
#pragma once

#include <QListWidget>

namespace Quorbel {

class Templates;

class TemplateList final : public QListWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TemplateList)

public:
    /// The templates must outlive this.
    explicit TemplateList(Templates& templates, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void fill();
    void showCurrent();

    Templates& m_templates;
    bool m_isFilling = false;
};

}  // namespace Quorbel
