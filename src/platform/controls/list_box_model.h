#pragma once

#include <QAbstractListModel>
#include <QStringList>

namespace controls
{

/// The rows of a list box. While it is filled the views keep the rows of before; they see the new
/// ones, all at once, at the end.
class ListBoxModel : public QAbstractListModel
{
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// The rows as the program sees them: while filling, those filled in.
    const QStringList &Rows() const { return m_filling ? m_filled : m_shown; }
    bool IsFilling() const { return m_filling; }
    void Append(const QString &text);
    void Remove(int row);
    void Clear();
    void BeginFill();
    void EndFill();

private:
    QStringList m_shown;
    QStringList m_filled;
    bool m_filling = false;
};

} // namespace controls
