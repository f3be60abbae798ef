#include "gui/engine/PrefixSuffixTab.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/prefixsuffix.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "gui/engine/DateFieldInputs.h"
#include "gui/engine/OptionBinder.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tavrin {

namespace {

// The ids of the mode buttons: the indexes Settings::choosePrefixSuffixMode takes.
constexpr int kText = 0;
constexpr int kDate = 1;

// A label and the inputs after it, one row of the grid.
void addRow(QGridLayout* grid, int row, QWidget* label, const QList<QWidget*>& inputs, const char* toolTipKey)
{
    OptionBinder::describeRow(QList<QWidget*> { label } + inputs, localized(toolTipKey));
    grid->addWidget(label, row, 0);
    auto* line = new QHBoxLayout;
    line->setSpacing(6);
    for (QWidget* input : inputs)
        line->addWidget(input);
    line->addStretch();
    grid->addLayout(line, row, 1);
}

} // namespace

PrefixSuffixTab::PrefixSuffixTab(Settings& settings, QWidget* parent)
    : ActionTab(parent)
    , m_settings(settings)
    , m_binder(new OptionBinder(settings, this))
{
    setObjectName(QStringLiteral("prefixSuffixTab"));
    auto* groups = new QHBoxLayout;
    groups->addWidget(makeTextGroup(), 1);
    groups->addWidget(makeDateGroup(), 2);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeModeRow());
    layout->addLayout(groups, 1);
    connect(&m_settings, &Settings::settingsChanged, this, &PrefixSuffixTab::refreshFromSettings);
    // The mode is chosen without a settings change the preview follows.
    connect(&m_settings, &Settings::isPrefixSuffixStringChanged, this, &PrefixSuffixTab::refreshFromSettings);
    refreshFromSettings();
}

QWidget* PrefixSuffixTab::fieldForOption(const QString& optionKey) const
{
    return m_binder->field(optionKey);
}

QLayout* PrefixSuffixTab::makeModeRow()
{
    QButtonGroup* modes = m_binder->radioGroup(&Settings::choosePrefixSuffixMode,
        [](const Settings& settings) { return settings.isPrefixSuffixString() ? kText : kDate; },
        OptionBinder::Preview::Waits);
    QRadioButton* text = m_binder->radioButton(modes, kText, QStringLiteral("prefixSuffixText"), "PREFIXSUFFIXTEXTMODE");
    text->setToolTip(localized("PREFIXSUFFIXTEXTMODETIP"));
    QRadioButton* date = m_binder->radioButton(modes, kDate, QStringLiteral("prefixSuffixDate"), "PREFIXSUFFIXDATEMODE");
    date->setToolTip(localized("PREFIXSUFFIXDATEMODETIP"));

    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(text);
    row->addWidget(date);
    row->addStretch();
    return row;
}

QGroupBox* PrefixSuffixTab::makeTextGroup()
{
    m_textGroup = new QGroupBox(localized("PREFIXSUFFIXTEXTGROUP"));
    m_textGroup->setObjectName(QStringLiteral("prefixSuffixTextGroup"));
    QGridLayout* grid = OptionBinder::groupGrid(m_textGroup);
    addRow(grid, 0, new QLabel(localized("PREFIXSUFFIXPREFIX")), { m_binder->textField({ Settings::prefixSuffixPrefixKey }) },
        "PREFIXSUFFIXPREFIXTIP");
    addRow(grid, 1, new QLabel(localized("PREFIXSUFFIXSUFFIX")), { m_binder->textField({ Settings::prefixSuffixSuffixKey }) },
        "PREFIXSUFFIXSUFFIXTIP");
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    return m_textGroup;
}

QGroupBox* PrefixSuffixTab::makeDateGroup()
{
    m_dateGroup = new QGroupBox(localized("PREFIXSUFFIXDATEGROUP"));
    m_dateGroup->setObjectName(QStringLiteral("prefixSuffixDateGroup"));
    QGridLayout* grid = OptionBinder::groupGrid(m_dateGroup);
    QWidget* before = m_binder->checkBox({ Settings::isPrefixSuffixDatePrefixKey, "PREFIXSUFFIXBEFORENAME" });
    QWidget* after = m_binder->checkBox({ Settings::isPrefixSuffixDateSuffixKey, "PREFIXSUFFIXAFTERNAME" });
    addRow(grid, 0, new QLabel(localized("PREFIXSUFFIXWHICHDATE")),
        { m_binder->choice(Settings::prefixSuffixFileDateAttributeKey,
              { { "PREFIXSUFFIXTODAY", prefixsuffixdate::Today }, { "PREFIXSUFFIXCREATED", prefixsuffixdate::Created },
                  { "PREFIXSUFFIXMODIFIED", prefixsuffixdate::Modified } }),
            before, after },
        "PREFIXSUFFIXWHICHDATETIP");
    addRow(grid, 1, new QLabel(localized("DATEFIELDSLABEL")),
        datefieldinputs::dateInputs(*m_binder,
            { Settings::prefixSuffixDatePart1Key, Settings::prefixSuffixDateSeperator1Key,
                Settings::prefixSuffixDatePart2Key, Settings::prefixSuffixDateSeperator2Key,
                Settings::prefixSuffixDatePart3Key }),
        "DATEFIELDSTIP");
    addRow(grid, 2, new QLabel(localized("TIMEFIELDSLABEL")),
        datefieldinputs::timeInputs(*m_binder,
            { Settings::prefixSuffixTimePart1Key, Settings::prefixSuffixTimeSeperator1Key,
                Settings::prefixSuffixTimePart2Key, Settings::prefixSuffixTimeSeperator2Key,
                Settings::prefixSuffixTimePart3Key }),
        "TIMEFIELDSTIP");
    addRow(grid, 3, new QLabel(localized("DATEPREFIX")),
        { m_binder->textField({ Settings::prefixSuffixDatePrefixKey }), new QLabel(localized("DATESUFFIX")),
            m_binder->textField({ Settings::prefixSuffixDateSuffixKey }) },
        "PREFIXSUFFIXDATETEXTSTIP");
    m_example = new QLabel;
    m_example->setObjectName(QStringLiteral("prefixSuffixExample"));
    m_example->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_example->setToolTip(localized("DATEEXAMPLETIP"));
    grid->addWidget(m_example, 4, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(5, 1);
    return m_dateGroup;
}

// The current moment stands in for an item's date.
void PrefixSuffixTab::refreshFromSettings()
{
    m_binder->refresh();
    const bool text = m_settings.isPrefixSuffixString();
    m_textGroup->setEnabled(text);
    m_dateGroup->setEnabled(!text);
    const PrefixSuffixOptions options = PrefixSuffixOptions::from(PropertyOptionValues(m_settings));
    m_example->setText(localized("DATEEXAMPLE").arg(
        displayName(storedName(prefixSuffixDateText(QDateTime::currentDateTime(), options)))));
}

} // namespace tavrin
