#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

namespace tavrin {

class ListController;

// Documents opened with the application: the paths of `tavrin FILE...`, of a second launch
// and of a file manager's "Open With". Rule files and profiles are told apart by their
// extension and handed on one by one; everything else is collected until no path came for
// half a second, so that twenty files opened at once arrive as one add.
class DocumentOpener : public QObject {
    Q_OBJECT

public:
    static constexpr int BatchMilliseconds = 500;

    explicit DocumentOpener(ListController& list, QObject* parent = nullptr);

    // Ignored while a job works on the list.
    void openFile(const QString& path);
    void openFiles(const QStringList& paths);

    bool isBatchPending() const { return m_loadFilesTimer.isActive(); }

signals:
    void ruleFileOpened(const QString& path);
    void profileFileOpened(const QString& path);

private:
    void loadCollectedFiles();

    ListController& m_list;
    QTimer m_loadFilesTimer;
    QStringList m_collectedPaths;
};

} // namespace tavrin
