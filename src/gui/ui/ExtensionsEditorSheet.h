#pragma once

#include <QDialog>
#include <QStringList>

class QLineEdit;
class QListWidget;
class QPushButton;

namespace tavrin {

// Edits a list of allowed extensions on a copy: the photo tab's (item type 0) or the audio
// tab's (item type 1). The list holds each extension once, as the actions compare them: a
// "." and upper-case letters. The caller takes extensions() when the sheet is accepted.
class ExtensionsEditorSheet : public QDialog {
    Q_OBJECT

public:
    enum ItemType : int {
        Photo = 0,
        Audio = 1,
    };

    ExtensionsEditorSheet(const QStringList& extensions, ItemType itemType, QWidget* parent = nullptr);

    QStringList extensions() const;

    // A typed extension in the form of the list: "flac", ".flac" and "*.Flac" all give
    // ".FLAC". Empty when there is none to add, or it could not be part of a name.
    static QString normalisedExtension(const QString& typed);

private:
    void addTypedExtension();
    void removeSelected();
    void enableButtons();

    QListWidget* m_list = nullptr;
    QLineEdit* m_newExtension = nullptr;
    QPushButton* m_addButton = nullptr;
    QPushButton* m_removeButton = nullptr;
};

} // namespace tavrin
