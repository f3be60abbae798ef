#include "gui/engine/AudioTab.h"

#include "core/engine/actions/audiotags.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/OptionBinder.h"
#include "gui/ui/ExtensionsEditorSheet.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tavrin {

namespace {

// The label of each token button, by its tag.
constexpr const char* kTokenLabels[] = { "AUDIOARTIST", "AUDIOYEAR", "AUDIOGENRE", "AUDIOTITLE", "AUDIOALBUM",
    "AUDIOCOMMENTS", "AUDIOTRACKNUMBER", "AUDIOCOMPOSER" };
constexpr int kTokenColumns = 4;
constexpr int kSeparatorWidth = 80;

QLineEdit* readOnlyView(const char* objectName, const char* toolTipKey)
{
    auto* view = new QLineEdit;
    view->setObjectName(QString::fromLatin1(objectName));
    view->setReadOnly(true);
    view->setToolTip(localized(toolTipKey));
    return view;
}

} // namespace

AudioTab::AudioTab(Settings& settings, QWidget* parent)
    : ActionTab(parent)
    , m_settings(settings)
    , m_binder(new OptionBinder(settings, this))
{
    setObjectName(QStringLiteral("audioTab"));
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(makeTokensGroup(), 1);
    layout->addWidget(makeOptionsGroup(), 1);
    // The separator's setters rebuild the mask, wherever the change comes from.
    connect(&m_settings, &Settings::id3RenamingSeperatorChanged, &m_settings, &Settings::resetID3Mask);
    connect(&m_settings, &Settings::isID3RenamingSeperatorChanged, &m_settings, &Settings::resetID3Mask);
    connect(&m_settings, &Settings::settingsChanged, this, &AudioTab::refreshFromSettings);
    refreshFromSettings();
}

QWidget* AudioTab::fieldForOption(const QString& optionKey) const
{
    if (optionKey == QLatin1String(Settings::id3RenamingMaskKey))
        return m_maskView;
    return m_binder->field(optionKey);
}

void AudioTab::id3RenamingMaskActions(int tag)
{
    const QString token = id3TokenForTag(tag);
    if (!token.isEmpty())
        m_settings.setId3RenamingTagsList(m_settings.id3RenamingTagsList() + QStringList { token });
    m_settings.resetID3Mask();
}

void AudioTab::id3RenamingMaskClear()
{
    const Settings::ChangeBatch batch(m_settings);
    m_settings.setId3RenamingTagsList({});
    m_settings.setId3RenamingMask(QString());
    m_settings.resetID3Mask();
}

void AudioTab::id3ExtensionEditor()
{
    auto* sheet = new ExtensionsEditorSheet(m_settings.id3Extensions(), ExtensionsEditorSheet::Audio, this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(
        sheet, &QDialog::accepted, this, [this, sheet] { m_settings.setId3Extensions(sheet->extensions()); });
    sheet->open();
}

QGroupBox* AudioTab::makeTokensGroup()
{
    auto* group = new QGroupBox(localized("AUDIOTOKENSGROUP"));
    auto* grid = new QGridLayout(group);
    for (int tag = 1; tag <= int(std::size(kTokenLabels)); ++tag) {
        auto* button = new QPushButton(localized(kTokenLabels[tag - 1]));
        button->setObjectName(QStringLiteral("id3Token%1").arg(tag));
        button->setToolTip(localized("AUDIOTOKENTIP").arg(id3TokenForTag(tag)));
        connect(button, &QPushButton::clicked, this, [this, tag] { id3RenamingMaskActions(tag); });
        grid->addWidget(button, (tag - 1) / kTokenColumns, (tag - 1) % kTokenColumns);
    }
    auto* maskLabel = new QLabel(localized("AUDIOMASK"));
    m_maskView = readOnlyView(Settings::id3RenamingMaskKey, "AUDIOMASKTIP");
    maskLabel->setBuddy(m_maskView);
    auto* clear = new QPushButton(localized("AUDIOCLEAR"));
    clear->setObjectName(QStringLiteral("id3RenamingMaskClear"));
    clear->setToolTip(localized("AUDIOCLEARTIP"));
    connect(clear, &QPushButton::clicked, this, &AudioTab::id3RenamingMaskClear);

    auto* maskRow = new QHBoxLayout;
    maskRow->addWidget(maskLabel);
    maskRow->addWidget(m_maskView, 1);
    maskRow->addWidget(clear);
    grid->addLayout(maskRow, 2, 0, 1, kTokenColumns);
    grid->setRowStretch(3, 1);
    return group;
}

QGroupBox* AudioTab::makeOptionsGroup()
{
    auto* group = new QGroupBox(localized("AUDIOOPTIONSGROUP"));
    auto* grid = new QGridLayout(group);

    QCheckBox* separate = m_binder->checkBox({ Settings::isID3RenamingSeperatorKey, "AUDIOSEPARATOR" });
    QLineEdit* separator = m_binder->textField({ Settings::id3RenamingSeperatorKey });
    separator->setFixedWidth(kSeparatorWidth);
    OptionBinder::describeRow({ separate, separator }, localized("AUDIOSEPARATORTIP"));
    grid->addWidget(separate, 0, 0);
    grid->addWidget(separator, 0, 1, Qt::AlignLeft);

    QCheckBox* replaceColons = m_binder->checkBox({ Settings::isID3RenamingColonReplaceKey, "AUDIOCOLON" });
    QLineEdit* replacement = m_binder->textField({ Settings::id3RenamingColonReplaceKey });
    replacement->setFixedWidth(kSeparatorWidth);
    OptionBinder::describeRow({ replaceColons, replacement }, localized("AUDIOCOLONTIP"));
    grid->addWidget(replaceColons, 1, 0);
    grid->addWidget(replacement, 1, 1, Qt::AlignLeft);

    auto* extensionsLabel = new QLabel(localized("AUDIOEXTENSIONS"));
    m_extensionsView = readOnlyView("id3ExtensionsView", "AUDIOEXTENSIONSTIP");
    extensionsLabel->setBuddy(m_extensionsView);
    auto* edit = new QPushButton(localized("AUDIOEXTENSIONSEDIT"));
    edit->setObjectName(QStringLiteral("id3ExtensionEditor"));
    edit->setToolTip(localized("AUDIOEXTENSIONSTIP"));
    connect(edit, &QPushButton::clicked, this, &AudioTab::id3ExtensionEditor);
    grid->addWidget(extensionsLabel, 2, 0, 1, 2);
    auto* extensionsRow = new QHBoxLayout;
    extensionsRow->addWidget(m_extensionsView, 1);
    extensionsRow->addWidget(edit);
    grid->addLayout(extensionsRow, 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(4, 1);
    return group;
}

void AudioTab::refreshFromSettings()
{
    m_binder->refresh();
    m_maskView->setText(m_settings.id3RenamingMask());
    m_extensionsView->setText(m_settings.id3Extensions().join(QLatin1String("; ")));
    m_binder->field(Settings::id3RenamingSeperatorKey)->setEnabled(m_settings.isID3RenamingSeperator());
    m_binder->field(Settings::id3RenamingColonReplaceKey)->setEnabled(m_settings.isID3RenamingColonReplace());
}

} // namespace tavrin
