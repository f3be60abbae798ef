#include "gui/ui/ExtensionsEditorSheet.h"

#include "core/text/LocalizedStrings.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace tavrin {

namespace {

// Longer than any extension in use, short of a name's 255 bytes.
constexpr int kExtensionLength = 32;

} // namespace

ExtensionsEditorSheet::ExtensionsEditorSheet(
    const QStringList& extensions, ItemType itemType, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("extensionsEditorSheet"));
    setWindowTitle(
        localized(itemType == Photo ? "EXTENSIONSEDITORPHOTOTITLE" : "EXTENSIONSEDITORAUDIOTITLE"));
    setWindowModality(Qt::WindowModal);

    auto* intro = new QLabel(localized("EXTENSIONSEDITORINTRO"));
    intro->setWordWrap(true);
    m_list = new QListWidget;
    m_list->setObjectName(QStringLiteral("extensionsList"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->addItems(extensions);
    m_newExtension = new QLineEdit;
    m_newExtension->setObjectName(QStringLiteral("newExtensionField"));
    m_newExtension->setPlaceholderText(localized("EXTENSIONSEDITORNEWPLACEHOLDER"));
    m_newExtension->setAccessibleName(localized("EXTENSIONSEDITORNEWPLACEHOLDER"));
    m_newExtension->setMaxLength(kExtensionLength);
    m_addButton = new QPushButton(localized("EXTENSIONSEDITORADD"));
    m_addButton->setObjectName(QStringLiteral("addExtensionButton"));
    m_removeButton = new QPushButton(localized("EXTENSIONSEDITORREMOVE"));
    m_removeButton->setObjectName(QStringLiteral("removeExtensionButton"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

    auto* layout = new QGridLayout(this);
    layout->addWidget(intro, 0, 0, 1, 2);
    layout->addWidget(m_list, 1, 0, 2, 1);
    layout->addWidget(m_removeButton, 1, 1, Qt::AlignTop);
    layout->addWidget(m_newExtension, 3, 0);
    layout->addWidget(m_addButton, 3, 1);
    layout->addWidget(buttons, 4, 0, 1, 2);
    layout->setRowStretch(2, 1);

    connect(m_addButton, &QPushButton::clicked, this, &ExtensionsEditorSheet::addTypedExtension);
    connect(m_newExtension, &QLineEdit::returnPressed, this, &ExtensionsEditorSheet::addTypedExtension);
    connect(m_newExtension, &QLineEdit::textChanged, this, &ExtensionsEditorSheet::enableButtons);
    connect(m_removeButton, &QPushButton::clicked, this, &ExtensionsEditorSheet::removeSelected);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &ExtensionsEditorSheet::enableButtons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    enableButtons();
    m_newExtension->setFocus();
}

QStringList ExtensionsEditorSheet::extensions() const
{
    QStringList list;
    for (int row = 0; row < m_list->count(); ++row)
        list.append(m_list->item(row)->text());
    return list;
}

QString ExtensionsEditorSheet::normalisedExtension(const QString& typed)
{
    QString extension = typed.trimmed();
    if (extension.startsWith(QLatin1Char('*')))
        extension.remove(0, 1);
    while (extension.startsWith(QLatin1Char('.')))
        extension.remove(0, 1);
    // A name's extension follows its last dot, so it never holds one, nor a blank or a slash.
    static const QString notInAnExtension = QStringLiteral("./:* \t");
    for (const QChar character : std::as_const(extension)) {
        if (notInAnExtension.contains(character) || !character.isPrint())
            return {};
    }
    return extension.isEmpty() ? QString() : QLatin1Char('.') + extension.toUpper();
}

void ExtensionsEditorSheet::addTypedExtension()
{
    const QString extension = normalisedExtension(m_newExtension->text());
    if (extension.isEmpty())
        return;
    if (m_list->findItems(extension, Qt::MatchExactly).isEmpty())
        m_list->addItem(extension);
    m_newExtension->clear();
}

void ExtensionsEditorSheet::removeSelected()
{
    qDeleteAll(m_list->selectedItems());
}

void ExtensionsEditorSheet::enableButtons()
{
    m_addButton->setEnabled(!normalisedExtension(m_newExtension->text()).isEmpty());
    m_removeButton->setEnabled(!m_list->selectedItems().isEmpty());
}

} // namespace tavrin
