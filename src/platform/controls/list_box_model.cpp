#include "platform/controls/list_box_model.h"

#include <utility>

namespace controls
{

int ListBoxModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant ListBoxModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || index.row() < 0 || index.row() >= m_shown.size())
        return {};
    return m_shown[index.row()];
}

void ListBoxModel::Append(const QString &text)
{
    if (m_filling) {
        m_filled.append(text);
        return;
    }
    const int row = static_cast<int>(m_shown.size());
    beginInsertRows({}, row, row);
    m_shown.append(text);
    endInsertRows();
}

void ListBoxModel::Remove(int row)
{
    if (m_filling) {
        m_filled.removeAt(row);
        return;
    }
    beginRemoveRows({}, row, row);
    m_shown.removeAt(row);
    endRemoveRows();
}

void ListBoxModel::Clear()
{
    if (m_filling) {
        m_filled.clear();
        return;
    }
    beginResetModel();
    m_shown.clear();
    endResetModel();
}

void ListBoxModel::BeginFill()
{
    m_filled = m_shown;
    m_filling = true;
}

void ListBoxModel::EndFill()
{
    beginResetModel();
    m_shown = std::exchange(m_filled, {});
    m_filling = false;
    endResetModel();
}

} // namespace controls
