#include "gui/engine/DateTimeTab.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/datetime.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "gui/engine/DateFieldInputs.h"
#include "gui/engine/OptionBinder.h"
#include "gui/engine/PlaceChoices.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tavrin {

namespace {

constexpr int kShortTextWidth = 64;

QHBoxLayout* rowOf(const QList<QWidget*>& widgets)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    row->addStretch();
    return row;
}

} // namespace

DateTimeTab::DateTimeTab(Settings& settings, QWidget* parent)
    : ActionTab(parent)
    , m_settings(settings)
    , m_binder(new OptionBinder(settings, this))
{
    setObjectName(QStringLiteral("dateTimeTab"));
    auto* groups = new QHBoxLayout;
    groups->addWidget(makeFormatGroup(), 3);
    groups->addWidget(makePlaceGroup(), 2);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeSourceRow());
    layout->addLayout(groups, 1);
    connect(&m_settings, &Settings::settingsChanged, this, &DateTimeTab::refreshFromSettings);
    refreshFromSettings();
}

DateTimeTab::~DateTimeTab() = default;

QWidget* DateTimeTab::fieldForOption(const QString& optionKey) const
{
    return m_binder->field(optionKey);
}

QLayout* DateTimeTab::makeSourceRow()
{
    QButtonGroup* sources = m_binder->radioGroup(
        &Settings::chooseDateTimeSource, [](const Settings& settings) { return settings.dateTimeDateOptionIndex(); });
    const struct {
        int source;
        const char* objectName;
        const char* labelKey;
        const char* toolTipKey;
    } buttons[] = {
        { datetimesource::Created, "dateTimeCreated", "DATETIMECREATED", "DATETIMECREATEDTIP" },
        { datetimesource::Modified, "dateTimeModified", "DATETIMEMODIFIED", "DATETIMEMODIFIEDTIP" },
        { datetimesource::Custom, "dateTimeCustom", "DATETIMECUSTOM", "DATETIMECUSTOMTIP" },
    };
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    for (const auto& button : buttons) {
        QRadioButton* radio
            = m_binder->radioButton(sources, button.source, QString::fromLatin1(button.objectName), button.labelKey);
        radio->setToolTip(localized(button.toolTipKey));
        row->addWidget(radio);
    }
    QWidget* customDate = m_binder->dateTimeField(Settings::dateTimeCustomDateKey);
    OptionBinder::describeRow({ sources->button(datetimesource::Custom), customDate }, localized("DATETIMECUSTOMTIP"));
    row->addWidget(customDate);
    row->addStretch();
    return row;
}

QGroupBox* DateTimeTab::makeFormatGroup()
{
    auto* group = new QGroupBox(localized("DATETIMEFORMATGROUP"));
    QGridLayout* grid = OptionBinder::groupGrid(group);
    const auto addRow = [&](int row, QWidget* label, const QList<QWidget*>& inputs, const char* toolTipKey) {
        OptionBinder::describeRow(QList<QWidget*> { label } + inputs, localized(toolTipKey));
        grid->addWidget(label, row, 0);
        grid->addLayout(rowOf(inputs), row, 1);
    };
    m_dateInputs = datefieldinputs::dateInputs(*m_binder,
        { Settings::dateTimeFormatDatePart1Key, Settings::dateTimeFormatDateSeperator1Key,
            Settings::dateTimeFormatDatePart2Key, Settings::dateTimeFormatDateSeperator2Key,
            Settings::dateTimeFormatDatePart3Key });
    addRow(0, m_binder->checkBox({ Settings::hasDateFormatKey, "DATEFIELDSLABEL" }), m_dateInputs, "DATEFIELDSTIP");
    m_timeInputs = datefieldinputs::timeInputs(*m_binder,
        { Settings::dateTimeFormatTimePart1Key, Settings::dateTimeFormatTimeSeperator1Key,
            Settings::dateTimeFormatTimePart2Key, Settings::dateTimeFormatTimeSeperator2Key,
            Settings::dateTimeFormatTimePart3Key });
    addRow(1, m_binder->checkBox({ Settings::hasTimeFormatKey, "TIMEFIELDSLABEL" }), m_timeInputs, "TIMEFIELDSTIP");

    QLineEdit* separator = m_binder->textField({ Settings::dateTimeSeparatorKey });
    QLineEdit* replacement = m_binder->textField({ Settings::dateTimeColonReplaceKey });
    for (QLineEdit* shortText : { separator, replacement })
        shortText->setFixedWidth(kShortTextWidth);
    QCheckBox* replaceColons = m_binder->checkBox({ Settings::isDateTimeColonReplaceKey, "DATETIMECOLON" });
    OptionBinder::describeRow({ replaceColons, replacement }, localized("DATETIMECOLONTIP"));
    auto* separatorLabel = new QLabel(localized("DATETIMESEPARATOR"));
    OptionBinder::describeRow({ separatorLabel, separator }, localized("DATETIMESEPARATORTIP"));
    grid->addWidget(separatorLabel, 2, 0);
    grid->addLayout(rowOf({ separator, replaceColons, replacement }), 2, 1);

    addRow(3, new QLabel(localized("DATEPREFIX")),
        { m_binder->textField({ Settings::dateTimePrefixKey }), new QLabel(localized("DATESUFFIX")),
            m_binder->textField({ Settings::dateTimeSuffixKey }) },
        "DATETIMETEXTSTIP");
    m_example = new QLabel;
    m_example->setObjectName(QStringLiteral("dateTimeExample"));
    m_example->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_example->setToolTip(localized("DATEEXAMPLETIP"));
    grid->addWidget(m_example, 4, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(5, 1);
    return group;
}

QGroupBox* DateTimeTab::makePlaceGroup()
{
    auto* group = new QGroupBox(localized("PLACEGROUP"));
    QGridLayout* grid = OptionBinder::groupGrid(group);
    m_places = std::make_unique<PlaceChoices>(*m_binder,
        PlaceChoices::Group { { Settings::dateTimeOptionsIndexKey, Settings::dateTimeAtPositionNoKey,
                                  Settings::dateTimeAtPositionDirectionKey, Settings::dateTimeAtBeforeTextKey,
                                  Settings::dateTimeAtBeforeTextOccurrenceKey, Settings::dateTimeAtAfterTextKey,
                                  Settings::dateTimeAtAfterTextOccurrenceKey },
            &Settings::chooseDateTimePlacement, OptionBinder::Preview::Follows, QStringLiteral("dateTimePlace"),
            PlaceChoices::Arrangement::OneUnderTheOther },
        grid, 0);
    grid->setRowStretch(5, 1);
    return group;
}

void DateTimeTab::refreshFromSettings()
{
    m_binder->refresh();
    m_binder->field(Settings::dateTimeCustomDateKey)->setEnabled(m_settings.hasDateTimeCustomDate());
    for (QWidget* input : std::as_const(m_dateInputs))
        input->setEnabled(m_settings.hasDateFormat());
    for (QWidget* input : std::as_const(m_timeInputs))
        input->setEnabled(m_settings.hasTimeFormat());
    // The separator stands between the two parts only.
    m_binder->field(Settings::dateTimeSeparatorKey)->setEnabled(m_settings.hasDateFormat() && m_settings.hasTimeFormat());
    m_binder->field(Settings::dateTimeColonReplaceKey)->setEnabled(m_settings.isDateTimeColonReplace());
    m_places->enableChosenInputs(m_settings);
    showExample();
}

// The current moment stands in for an item's date; the custom date is the date itself.
void DateTimeTab::showExample()
{
    const DateTimeOptions options = DateTimeOptions::from(PropertyOptionValues(m_settings));
    const QDateTime date
        = options.source == datetimesource::Custom ? options.customDate : QDateTime::currentDateTime();
    m_example->setText(localized("DATEEXAMPLE").arg(displayName(storedName(dateTimeText(date, options)))));
}

} // namespace tavrin
