#include "gui/engine/PhotoTab.h"

#include "core/metadata/MetaDataCatalogue.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/OptionBinder.h"
#include "gui/metadata/PhotoRenamingMaskEditor.h"
#include "gui/ui/ExtensionsEditorSheet.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tavrin {

namespace {

struct QuickInsert {
    const char* token;
    const char* labelKey;
    const char* objectName;
};

const QuickInsert kQuickInserts[] = {
    { phototoken::Filename, "PHOTOFILENAME", "photoRenamingMaskFilename" },
    { phototoken::Date, "PHOTODATE", "photoRenamingMaskDate" },
    { phototoken::Time, "PHOTOTIME", "photoRenamingMaskTime" },
    { phototoken::DeviceMake, "PHOTODEVICEMAKE", "photoRenamingMaskDeviceMake" },
    { phototoken::DeviceModel, "PHOTODEVICEMODEL", "photoRenamingMaskDeviceModel" },
    { phototoken::Dimensions, "PHOTODIMENSIONS", "photoRenamingMaskDimensions" },
};
constexpr int kInsertColumns = 3;
constexpr int kShortWidth = 70;
// Room for every field of the catalogue with separators, far more than a name can hold.
constexpr int kLongestMask = 4096;

QPushButton* button(const char* objectName, const char* textKey, const char* toolTipKey)
{
    auto* made = new QPushButton(localized(textKey));
    made->setObjectName(QString::fromLatin1(objectName));
    made->setToolTip(localized(toolTipKey));
    return made;
}

} // namespace

PhotoTab::PhotoTab(Settings& settings, QWidget* parent)
    : ActionTab(parent)
    , m_settings(settings)
    , m_binder(new OptionBinder(settings, this))
{
    m_catalogue.InitializeMetaDataList();
    setObjectName(QStringLiteral("photoTab"));
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(makeMaskGroup(), 1);
    layout->addWidget(makeOptionsGroup(), 1);
    layout->addWidget(makePatternsGroup());
    // The separator's setters rebuild the mask from the chosen fields, wherever the change comes from.
    connect(&m_settings, &Settings::photoRenamingSeperatorChanged, &m_settings, &Settings::resetPhotoMask);
    connect(&m_settings, &Settings::isPhotoRenamingSeperatorChanged, &m_settings, &Settings::resetPhotoMask);
    connect(&m_settings, &Settings::settingsChanged, this, &PhotoTab::refreshFromSettings);
    refreshFromSettings();
}

QWidget* PhotoTab::fieldForOption(const QString& optionKey) const
{
    return m_binder->field(optionKey);
}

void PhotoTab::photoRenamingMaskInsert(const QString& token)
{
    QString mask = m_settings.photoRenamingMask();
    if (m_settings.isPhotoRenamingSeperator() && !mask.isEmpty())
        mask += m_settings.photoRenamingSeperator();
    m_settings.setPhotoRenamingMask(mask + token);
}

void PhotoTab::photoRenamingMaskClear()
{
    const Settings::ChangeBatch batch(m_settings);
    m_settings.setPhotoMetaDataList({});
    m_settings.setPhotoRenamingMask(QString());
}

void PhotoTab::photoExtensionEditor()
{
    auto* sheet = new ExtensionsEditorSheet(m_settings.photoExtensions(), ExtensionsEditorSheet::Photo, this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &QDialog::accepted, this,
        [this, sheet] { m_settings.setPhotoExtensions(sheet->extensions()); });
    sheet->open();
}

void PhotoTab::photoRenamingMaskEditor()
{
    auto* sheet = new PhotoRenamingMaskEditor(
        m_catalogue, m_catalogue.fieldsForTags(m_settings.photoMetaDataList()), this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &QDialog::accepted, this, [this, sheet] {
        const Settings::ChangeBatch batch(m_settings);
        m_settings.setPhotoMetaDataList(MetaDataField::getTagsList(sheet->metadataFields()));
        m_settings.resetPhotoMask();
    });
    sheet->open();
}

QGroupBox* PhotoTab::makeMaskGroup()
{
    auto* group = new QGroupBox(localized("PHOTOMASKGROUP"));
    auto* grid = new QGridLayout(group);
    int index = 0;
    for (const QuickInsert& insert : kQuickInserts) {
        const QString token = QLatin1String(insert.token);
        auto* add = new QPushButton(localized(insert.labelKey));
        add->setObjectName(QLatin1String(insert.objectName));
        add->setToolTip(localized("PHOTOINSERTTIP").arg(token));
        connect(add, &QPushButton::clicked, this, [this, token] { photoRenamingMaskInsert(token); });
        grid->addWidget(add, index / kInsertColumns, index % kInsertColumns);
        ++index;
    }
    auto* maskLabel = new QLabel(localized("PHOTOMASK"));
    QLineEdit* mask = m_binder->textField({ Settings::photoRenamingMaskKey });
    mask->setMaxLength(kLongestMask);
    maskLabel->setBuddy(mask);
    OptionBinder::describeRow({ maskLabel, mask }, localized("PHOTOMASKTIP"));
    QPushButton* editor = button("photoRenamingMaskEditor", "PHOTOMASKEDITOR", "PHOTOMASKEDITORTIP");
    connect(editor, &QPushButton::clicked, this, &PhotoTab::photoRenamingMaskEditor);
    QPushButton* clear = button("photoRenamingMaskClear", "PHOTOCLEAR", "PHOTOCLEARTIP");
    connect(clear, &QPushButton::clicked, this, &PhotoTab::photoRenamingMaskClear);

    grid->addWidget(maskLabel, 2, 0, 1, kInsertColumns);
    grid->addWidget(mask, 3, 0, 1, kInsertColumns);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(editor);
    buttons->addWidget(clear);
    grid->addLayout(buttons, 4, 0, 1, kInsertColumns);
    grid->setRowStretch(5, 1);
    return group;
}

QGroupBox* PhotoTab::makeOptionsGroup()
{
    auto* group = new QGroupBox(localized("PHOTOOPTIONSGROUP"));
    auto* grid = new QGridLayout(group);
    const auto addSwitchedField = [&](int row, const char* switchKey, const char* labelKey, const char* fieldKey,
                                      const char* toolTipKey) {
        QCheckBox* check = m_binder->checkBox({ switchKey, labelKey });
        QLineEdit* field = m_binder->textField({ fieldKey });
        field->setFixedWidth(kShortWidth);
        OptionBinder::describeRow({ check, field }, localized(toolTipKey));
        grid->addWidget(check, row, 0);
        grid->addWidget(field, row, 1, Qt::AlignLeft);
    };
    addSwitchedField(0, Settings::isPhotoRenamingSeperatorKey, "PHOTOSEPARATOR", Settings::photoRenamingSeperatorKey,
        "PHOTOSEPARATORTIP");
    addSwitchedField(1, Settings::isPhotoRenamingColonReplaceKey, "PHOTOCOLON",
        Settings::photoRenamingColonReplaceKey, "PHOTOCOLONTIP");

    auto* paddingLabel = new QLabel(localized("PHOTOPADDING"));
    QLineEdit* padding = m_binder->textField({ Settings::photoPaddingMaskKey });
    padding->setFixedWidth(kShortWidth);
    paddingLabel->setBuddy(padding);
    OptionBinder::describeRow({ paddingLabel, padding }, localized("PHOTOPADDINGTIP"));
    grid->addWidget(paddingLabel, 2, 0);
    grid->addWidget(padding, 2, 1, Qt::AlignLeft);
    QCheckBox* reset = m_binder->checkBox({ Settings::isPhotoResetSequenceOnEachFolderKey, "PHOTORESETFOLDER" });
    reset->setToolTip(localized("PHOTORESETFOLDERTIP"));
    grid->addWidget(reset, 3, 0, 1, 2);

    auto* extensionsLabel = new QLabel(localized("PHOTOEXTENSIONS"));
    m_extensionsView = new QLineEdit;
    m_extensionsView->setObjectName(QStringLiteral("photoExtensionsView"));
    m_extensionsView->setReadOnly(true);
    extensionsLabel->setBuddy(m_extensionsView);
    QPushButton* edit = button("photoExtensionEditor", "PHOTOEXTENSIONSEDIT", "PHOTOEXTENSIONSTIP");
    OptionBinder::describeRow({ extensionsLabel, m_extensionsView }, localized("PHOTOEXTENSIONSTIP"));
    connect(edit, &QPushButton::clicked, this, &PhotoTab::photoExtensionEditor);
    grid->addWidget(extensionsLabel, 4, 0, 1, 2);
    auto* extensionsRow = new QHBoxLayout;
    extensionsRow->addWidget(m_extensionsView, 1);
    extensionsRow->addWidget(edit);
    grid->addLayout(extensionsRow, 5, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(6, 1);
    return group;
}

// Each pattern is three parts (a Unicode date pattern such as "yyyy", or "None") with a
// separator after the first and the second.
QGroupBox* PhotoTab::makePatternsGroup()
{
    auto* group = new QGroupBox(localized("PHOTOPATTERNSGROUP"));
    auto* grid = new QGridLayout(group);
    const auto addPattern = [&](int row, const char* labelKey, const char* toolTipKey,
                                std::initializer_list<const char*> keys) {
        auto* label = new QLabel(localized(labelKey));
        QList<QWidget*> widgets { label };
        int column = 1;
        for (const char* key : keys) {
            QLineEdit* field = m_binder->textField({ key });
            field->setFixedWidth(column % 2 == 1 ? kShortWidth : kShortWidth / 2);
            widgets.append(field);
            grid->addWidget(field, row, column++);
        }
        label->setBuddy(widgets.at(1));
        OptionBinder::describeRow(widgets, localized(toolTipKey));
        grid->addWidget(label, row, 0);
    };
    addPattern(0, "PHOTODATEPATTERN", "PHOTODATEPATTERNTIP",
        { Settings::photoDatePart1Key, Settings::photoDateSeperator1Key, Settings::photoDatePart2Key,
            Settings::photoDateSeperator2Key, Settings::photoDatePart3Key });
    addPattern(1, "PHOTOTIMEPATTERN", "PHOTOTIMEPATTERNTIP",
        { Settings::photoTimePart1Key, Settings::photoTimeSeperator1Key, Settings::photoTimePart2Key,
            Settings::photoTimeSeperator2Key, Settings::photoTimePart3Key });
    grid->setRowStretch(2, 1);
    return group;
}

void PhotoTab::refreshFromSettings()
{
    m_binder->refresh();
    m_extensionsView->setText(m_settings.photoExtensions().join(QLatin1String("; ")));
    m_extensionsView->setCursorPosition(0);
    m_binder->field(Settings::photoRenamingSeperatorKey)->setEnabled(m_settings.isPhotoRenamingSeperator());
    m_binder->field(Settings::photoRenamingColonReplaceKey)->setEnabled(m_settings.isPhotoRenamingColonReplace());
}

} // namespace tavrin
