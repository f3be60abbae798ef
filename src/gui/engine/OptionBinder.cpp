#include "gui/engine/OptionBinder.h"

#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <functional>
#include <optional>

namespace tavrin {

namespace {

// Room for the digits and the frame, in widths of a digit.
constexpr int kDigitsOfFrame = 4;

// "Text:" is announced as "Text".
QString spokenName(QString text)
{
    text.remove(QLatin1Char('&'));
    if (text.endsWith(QLatin1Char(':')))
        text.chop(1);
    return text;
}

} // namespace

OptionBinder::OptionBinder(Settings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{
}

QLineEdit* OptionBinder::formattedField(
    const char* optionKey, TextFieldFormatter::Kind kind, int maximumLength)
{
    auto* field = new QLineEdit;
    field->setObjectName(QString::fromLatin1(optionKey));
    auto* formatter = new TextFieldFormatter(field, kind, maximumLength);
    connect(formatter, &TextFieldFormatter::edited, this,
        [this, optionKey](const QString& text) { m_settings.setProperty(optionKey, text); });
    m_fields.insert(QString::fromLatin1(optionKey), field);
    return field;
}

QLineEdit* OptionBinder::textField(const KeyedInput& input, TextFieldFormatter::Kind kind)
{
    QLineEdit* field = formattedField(input.optionKey, kind, NameLength);
    if (input.textKey)
        field->setPlaceholderText(localized(input.textKey));
    return field;
}

QLineEdit* OptionBinder::shortField(const char* optionKey, TextFieldFormatter::Kind kind, int maximumLength)
{
    QLineEdit* field = formattedField(optionKey, kind, maximumLength);
    const int digitWidth = field->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    field->setFixedWidth(digitWidth * (maximumLength + kDigitsOfFrame));
    return field;
}

QLineEdit* OptionBinder::numberField(const char* optionKey, TextFieldFormatter::Kind kind, int digits)
{
    QLineEdit* field = shortField(optionKey, kind, digits);
    field->setAlignment(Qt::AlignRight);
    return field;
}

QLineEdit* OptionBinder::lettersField(const char* optionKey)
{
    return shortField(optionKey, TextFieldFormatter::Kind::Letters, SequenceDigits);
}

QCheckBox* OptionBinder::checkBox(const KeyedInput& input)
{
    const char* optionKey = input.optionKey;
    auto* box = new QCheckBox(localized(input.textKey));
    box->setObjectName(QString::fromLatin1(optionKey));
    connect(box, &QCheckBox::clicked, this,
        [this, optionKey](bool checked) { m_settings.setProperty(optionKey, checked); });
    m_fields.insert(QString::fromLatin1(optionKey), box);
    return box;
}

QComboBox* OptionBinder::choice(const char* optionKey, const Choices& choices)
{
    auto* chooser = new QComboBox;
    chooser->setObjectName(QString::fromLatin1(optionKey));
    for (const auto& [labelKey, value] : choices)
        chooser->addItem(localized(labelKey), value);
    connect(chooser, &QComboBox::activated, this,
        [this, chooser, optionKey](int) { m_settings.setProperty(optionKey, chooser->currentData()); });
    m_fields.insert(QString::fromLatin1(optionKey), chooser);
    return chooser;
}

QComboBox* OptionBinder::directionChoice(
    const char* optionKey, const QVariant& fromStart, const QVariant& fromEnd)
{
    return choice(optionKey, { { "FROMTHESTART", fromStart }, { "FROMTHEEND", fromEnd } });
}

QDateTimeEdit* OptionBinder::dateTimeField(const char* optionKey)
{
    auto* edit = new QDateTimeEdit;
    edit->setObjectName(QString::fromLatin1(optionKey));
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    connect(edit, &QDateTimeEdit::dateTimeChanged, this,
        [this, optionKey](const QDateTime& date) { m_settings.setProperty(optionKey, date); });
    m_fields.insert(QString::fromLatin1(optionKey), edit);
    return edit;
}

QButtonGroup* OptionBinder::radioGroup(bool (Settings::*choose)(int), ChosenIndex chosen, Preview preview)
{
    auto* group = new QButtonGroup(this);
    // Wrapped in mem_fn: GCC's AddressSanitizer misreads a member pointer captured as it is
    // and stops the sanitized tests with a false stack-buffer-underflow.
    connect(group, &QButtonGroup::idClicked, this,
        [this, preview, chooseIndex = std::mem_fn(choose)](int id) {
            std::optional<Settings::QuietChange> quiet;
            if (preview == Preview::Waits)
                quiet.emplace(m_settings);
            chooseIndex(m_settings, id);
        });
    m_groups.append({ group, std::move(chosen) });
    return group;
}

QRadioButton* OptionBinder::radioButton(
    QButtonGroup* group, int id, const QString& objectName, const char* labelKey)
{
    auto* button = new QRadioButton(localized(labelKey));
    button->setObjectName(objectName);
    group->addButton(button, id);
    return button;
}

QGridLayout* OptionBinder::groupGrid(QGroupBox* group)
{
    auto* grid = new QGridLayout(group);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    return grid;
}

void OptionBinder::describeRow(const QList<QWidget*>& widgets, const QString& toolTip)
{
    QString name;
    for (QWidget* widget : widgets) {
        widget->setToolTip(toolTip);
        if (const auto* label = qobject_cast<QLabel*>(widget))
            name = spokenName(label->text());
        else if (const auto* button = qobject_cast<QAbstractButton*>(widget))
            name = spokenName(button->text());
        else
            widget->setAccessibleName(name);
    }
}

QWidget* OptionBinder::field(const QString& optionKey) const
{
    return m_fields.value(optionKey);
}

// A value no button stands for shows as no choice rather than as a wrong one; an exclusive
// group only lets go of its checked button while it is not exclusive.
void OptionBinder::refresh()
{
    for (const auto& [group, chosen] : std::as_const(m_groups)) {
        const QSignalBlocker blocker(group);
        if (QAbstractButton* button = group->button(chosen(m_settings))) {
            button->setChecked(true);
        } else if (QAbstractButton* checked = group->checkedButton()) {
            group->setExclusive(false);
            checked->setChecked(false);
            group->setExclusive(true);
        }
    }
    for (auto it = m_fields.cbegin(); it != m_fields.cend(); ++it)
        refreshField(it.key(), it.value());
}

// A field is only written when it differs, so the one being typed in keeps its cursor.
void OptionBinder::refreshField(const QString& optionKey, QWidget* field)
{
    const QVariant value = m_settings.property(optionKey.toLatin1().constData());
    const QSignalBlocker blocker(field);
    if (auto* chooser = qobject_cast<QComboBox*>(field))
        chooser->setCurrentIndex(chooser->findData(value));
    else if (auto* box = qobject_cast<QCheckBox*>(field))
        box->setChecked(value.toBool());
    else if (auto* edit = qobject_cast<QDateTimeEdit*>(field))
        edit->setDateTime(value.toDateTime());
    else if (auto* line = qobject_cast<QLineEdit*>(field); line && line->text() != value.toString())
        line->setText(value.toString());
}

} // namespace tavrin
