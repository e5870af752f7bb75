#pragma once

#include <memory>
#include <QLayout>
#include <vector>

/// A row of controls that goes on in a further line where the window is too narrow for all of
/// them. Of itself it is as wide as one line; it can be as narrow as its widest control.
class WrappingRow final : public QLayout {
    Q_OBJECT
public:
    WrappingRow() = default;
    ~WrappingRow() override;

    /// Adds controls of which no line separates one from the next: a label and what it names.
    void AddTogether(const QList<QWidget*>& controls);

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;

private:
    int Gap() const;
    enum class Act { Measure, Move };
    /// Puts the items into lines of this rectangle's width; returns the height of all lines.
    int PutInLines(const QRect& rect, Act act) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
};
