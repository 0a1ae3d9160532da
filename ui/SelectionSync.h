#pragma once

#include <QObject>

class QAbstractItemView;

namespace vorn {

class ArrayControllerModel;

// Keeps a view's selection and its ArrayController's selection the same in
// both directions. Rows are matched by object, so the two stay together
// while the list is re-sorted, filtered or loses rows.
class SelectionSync : public QObject
{
    Q_OBJECT
public:
    // The view must already show the model.
    SelectionSync(ArrayControllerModel& model, QAbstractItemView& view, QObject* parent = nullptr);

    // Shows the controller's selection in the view (and scrolls to it).
    void controllerToView();

private:
    void viewToController();

    ArrayControllerModel& m_model;
    QAbstractItemView& m_view;
    bool m_applying = false;
};

} // namespace vorn
