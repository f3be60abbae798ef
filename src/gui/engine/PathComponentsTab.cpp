#include "gui/engine/PathComponentsTab.h"

#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/OptionBinder.h"
#include "gui/engine/PlaceChoices.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace tavrin {

namespace {

using Kind = TextFieldFormatter::Kind;

} // namespace

PathComponentsTab::PathComponentsTab(Settings& settings, QWidget* parent)
    : ActionTab(parent)
    , m_settings(settings)
    , m_binder(new OptionBinder(settings, this))
{
    setObjectName(QStringLiteral("pathComponentsTab"));
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(makeFoldersGroup(), 1);
    layout->addWidget(makePlaceGroup(), 2);
    connect(&m_settings, &Settings::settingsChanged, this, &PathComponentsTab::refreshFromSettings);
    // The place is chosen without a settings change the preview follows.
    connect(&m_settings, &Settings::pathComponentsOptionsIndexChanged, this, &PathComponentsTab::refreshFromSettings);
    refreshFromSettings();
}

PathComponentsTab::~PathComponentsTab() = default;

QWidget* PathComponentsTab::fieldForOption(const QString& optionKey) const
{
    return m_binder->field(optionKey);
}

QGroupBox* PathComponentsTab::makeFoldersGroup()
{
    auto* group = new QGroupBox(localized("PATHFOLDERSGROUP"));
    QGridLayout* grid = OptionBinder::groupGrid(group);
    const struct {
        const char* labelKey;
        QWidget* input;
        const char* toolTipKey;
    } rows[] = {
        { "PATHLEVELS", m_binder->numberField(Settings::pathComponentsLevelNoKey, Kind::Number), "PATHLEVELSTIP" },
        { "PATHSEPARATOR", m_binder->textField({ Settings::pathComponentsSeparatorKey }), "PATHSEPARATORTIP" },
        { "PATHPREFIX", m_binder->textField({ Settings::pathComponentsPrefixKey }), "PATHTEXTSTIP" },
        { "PATHSUFFIX", m_binder->textField({ Settings::pathComponentsSuffixKey }), "PATHTEXTSTIP" },
    };
    int row = 0;
    for (const auto& [labelKey, input, toolTipKey] : rows) {
        auto* label = new QLabel(localized(labelKey));
        label->setBuddy(input);
        OptionBinder::describeRow({ label, input }, localized(toolTipKey));
        grid->addWidget(label, row, 0);
        grid->addWidget(input, row++, 1, qobject_cast<QLineEdit*>(input) ? Qt::Alignment() : Qt::AlignLeft);
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(row, 1);
    return group;
}

QGroupBox* PathComponentsTab::makePlaceGroup()
{
    auto* group = new QGroupBox(localized("PLACEGROUP"));
    QGridLayout* grid = OptionBinder::groupGrid(group);
    m_places = std::make_unique<PlaceChoices>(*m_binder,
        PlaceChoices::Group { { Settings::pathComponentsOptionsIndexKey, Settings::pathComponentsAtPositionNoKey,
                                  Settings::pathComponentsAtPositionDirectionKey,
                                  Settings::pathComponentsAtBeforeTextKey,
                                  Settings::pathComponentsAtBeforeOccurrenceKey,
                                  Settings::pathComponentsAtAfterTextKey,
                                  Settings::pathComponentsAtAfterOccurrenceKey },
            &Settings::choosePathComponentsPlacement, OptionBinder::Preview::Waits,
            QStringLiteral("pathComponentsPlace") },
        grid, 0);
    grid->setRowStretch(PlaceChoices::Rows, 1);
    return group;
}

void PathComponentsTab::refreshFromSettings()
{
    m_binder->refresh();
    m_places->enableChosenInputs(m_settings);
}

} // namespace tavrin
