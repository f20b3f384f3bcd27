#pragma once

#include <QAbstractListModel>

/// The gazetteer's names as a list that may repeat the whole table: a list grown by it holds no name twice in
/// memory.
class HelysegModell : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& szulo = {}) const override;
    QVariant data(const QModelIndex& hely, int szerep) const override;

    /// The table once more at the end.
    void noveles();

private:
    int ismetlesek_ = 0;
};
