#pragma once

#include <QTableView>

namespace vorn {

// The table of documents: whole-row selection of one document, no grid, and
// a quiet message in place of the rows while the list is empty.
class DocumentListView : public QTableView
{
    Q_OBJECT
public:
    explicit DocumentListView(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;
    void setPlaceholderText(const QString& text);
    const QString& placeholderText() const { return m_placeholder; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_placeholder;
};

} // namespace vorn
