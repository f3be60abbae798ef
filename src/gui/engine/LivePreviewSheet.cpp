#include "gui/engine/LivePreviewSheet.h"

#include "core/text/LocalizedStrings.h"
#include "gui/ui/TextFieldFormatter.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tavrin {

namespace {

constexpr int kLimitDigits = 6;

} // namespace

LivePreviewSheet::LivePreviewSheet(bool allFiles, const QString& limit, QWidget* parent)
    : Sheet({ "livePreviewSheet", "LIVEPREVIEWTITLE" }, parent)
{

    auto* intro = new QLabel(localized("LIVEPREVIEWINTRO"));
    intro->setObjectName(QStringLiteral("livePreviewIntro"));
    intro->setWordWrap(true);
    // A wrapped label asks for no width of its own: this keeps its lines of a readable length.
    intro->setMinimumWidth(intro->fontMetrics().averageCharWidth() * 64);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addSpacing(6);
    layout->addWidget(createChoices(allFiles, limit));
    layout->addSpacing(6);
    layout->addStretch(1);
    layout->addWidget(createButtons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    (allFiles ? m_allItemsButton : m_firstItemsButton)->setFocus();
}

// "Preview the first [N] items": the number sits inside the sentence, so the radio holds the
// words before it and a label the words after.
QWidget* LivePreviewSheet::createChoices(bool allFiles, const QString& limit)
{
    m_firstItemsButton = new QRadioButton(localized("LIVEPREVIEWFIRST"));
    m_firstItemsButton->setObjectName(QStringLiteral("firstItemsButton"));
    m_firstItemsButton->setToolTip(localized("LIVEPREVIEWFIRSTTOOLTIP"));
    m_limitField
        = new QLineEdit(TextFieldFormatter::filtered(TextFieldFormatter::Kind::PositiveNumber, limit));
    m_limitField->setObjectName(QStringLiteral("filesLimitField"));
    m_limitField->setToolTip(localized("LIVEPREVIEWLIMITTOOLTIP"));
    m_limitField->setAccessibleName(localized("LIVEPREVIEWLIMITTOOLTIP"));
    m_limitField->setAlignment(Qt::AlignRight);
    new TextFieldFormatter(m_limitField, TextFieldFormatter::Kind::PositiveNumber, kLimitDigits);
    // Wide enough for every digit the field holds, plus its frame and margins.
    const int digitsWidth = m_limitField->fontMetrics().horizontalAdvance(QString(kLimitDigits + 1, u'0'));
    m_limitField->setFixedWidth(digitsWidth + m_limitField->sizeHint().height());
    m_limitUnitLabel = new QLabel(localized("LIVEPREVIEWFIRSTITEMS"));
    m_allItemsButton = new QRadioButton(localized("LIVEPREVIEWALL"));
    m_allItemsButton->setObjectName(QStringLiteral("allItemsButton"));
    m_allItemsButton->setToolTip(localized("LIVEPREVIEWALLTOOLTIP"));
    (allFiles ? m_allItemsButton : m_firstItemsButton)->setChecked(true);
    connect(m_firstItemsButton, &QRadioButton::toggled, this, &LivePreviewSheet::enableLimit);
    enableLimit();

    auto* choices = new QWidget;
    auto* layout = new QVBoxLayout(choices);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* first = new QHBoxLayout;
    first->addWidget(m_firstItemsButton);
    first->addWidget(m_limitField);
    first->addWidget(m_limitUnitLabel);
    first->addStretch(1);
    layout->addLayout(first);
    layout->addWidget(m_allItemsButton);
    return choices;
}

QDialogButtonBox* LivePreviewSheet::createButtons()
{
    QDialogButtonBox* box = createButtonBox(QDialogButtonBox::Cancel);
    addDefaultButton(box, { "turnOnButton", "LIVEPREVIEWTURNON" });
    connect(box, &QDialogButtonBox::accepted, this, &LivePreviewSheet::accept);
    return box;
}

void LivePreviewSheet::enableLimit()
{
    const bool first = m_firstItemsButton->isChecked();
    m_limitField->setEnabled(first);
    m_limitUnitLabel->setEnabled(first);
}

bool LivePreviewSheet::isAllFiles() const
{
    return m_allItemsButton->isChecked();
}

QString LivePreviewSheet::filesLimit() const
{
    return m_limitField->text();
}

} // namespace tavrin
