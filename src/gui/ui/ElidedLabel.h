#pragma once

#include <QLabel>

namespace tavrin {

// A one-line label that shortens its text in the middle to fit, for long paths whose
// beginning and end both matter. The whole text stays available as its tooltip.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void setFullText(const QString& text);
    QString fullText() const { return m_fullText; }

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateElidedText();

    QString m_fullText;
};

} // namespace tavrin
