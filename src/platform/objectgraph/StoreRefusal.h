#pragma once

namespace kesto
{

/// The Error::code of a store file that was refused for a reason of our own. SQLite's codes are positive.
enum class StoreRefusal {
    NewerModel = -1,      ///< written by a newer version of the program
    ForeignDatabase = -2, ///< a database of another program
    SchemaChanged = -3,   ///< the model changed but its version did not
    Damaged = -4          ///< the content check failed
};

} // namespace kesto
