#include "store/Statement.h"

#include <sqlite3.h>

#include <utility>

namespace tarvelo::store {

void Statement::Finalize::operator()(sqlite3_stmt *handle) const
{
    sqlite3_finalize(handle);
}

void Statement::reset(sqlite3_stmt *handle)
{
    m_handle.reset(handle);
    m_bytes.clear();
}

const QByteArray &Statement::keep(QByteArray bytes)
{
    return m_bytes.emplace_back(std::move(bytes));
}

} // namespace tarvelo::store
