#pragma once

#include "gui/ui/Sheet.h"

#include <QString>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace tavrin {

// Opened when the user turns live preview on: says what live preview does and asks how
// many items each preview covers, the first N or all of them.
class LivePreviewSheet : public Sheet {
    Q_OBJECT

public:
    LivePreviewSheet(bool allFiles, const QString& limit, QWidget* parent = nullptr);

    bool isAllFiles() const;
    QString filesLimit() const;

private:
    QWidget* createChoices(bool allFiles, const QString& limit);
    QDialogButtonBox* createButtons();
    void enableLimit();

    QRadioButton* m_firstItemsButton = nullptr;
    QRadioButton* m_allItemsButton = nullptr;
    QLineEdit* m_limitField = nullptr;
    QLabel* m_limitUnitLabel = nullptr;
};

} // namespace tavrin
