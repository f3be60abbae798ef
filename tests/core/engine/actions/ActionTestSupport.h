#pragma once

#include "core/engine/OptionValues.h"
#include "core/list/FileSystemItem.h"
#include "core/profiles/Settings.h"
#include "support/TempTree.h"

#include <QString>
#include <gtest/gtest.h>
#include <initializer_list>
#include <optional>

namespace tavrin::test {

inline QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

// An index option holding a value the tab never offers, as a rule file may.
template <typename Enum>
constexpr Enum unknown(int value)
{
    return static_cast<Enum>(value);
}

// One call of an action: the record's name on disk, the options, the proposal it must
// make, and the proposal an earlier rule step left in newFilename.
template <typename Options>
struct ActionRow {
    const char* name;
    const char* onDisk;
    Options options;
    const char* expected;
    const char* earlierProposal = "";
};

// The options struct an action reads from the settings object, as a run reads it.
template <typename Options>
Options optionsFrom(const Settings& settings)
{
    return Options::from(PropertyOptionValues(settings));
}

// Records of real files, each in a folder of its own so that rows may reuse names, with
// the proposal an earlier rule step left in newFilename.
class ActionTest : public ::testing::Test {
protected:
    FileSystemItem item(const char* onDisk, const char* earlierProposal = "")
    {
        const QString relative = QStringLiteral("row%1/").arg(++m_rows) + q(onDisk);
        std::optional<FileSystemItem> made = FileSystemItem::initWithPath(tree.file(relative));
        EXPECT_TRUE(made.has_value()) << onDisk;
        FileSystemItem record = made.value_or(FileSystemItem());
        record.setObject(q(earlierProposal), QStringLiteral("newFilename"));
        return record;
    }

    // Runs `action` once per row on a fresh record; every call succeeds.
    template <typename Options, typename Action>
    void expectRows(std::initializer_list<ActionRow<Options>> rows, Action action)
    {
        for (const ActionRow<Options>& row : rows) {
            SCOPED_TRACE(row.name);
            FileSystemItem record = item(row.onDisk, row.earlierProposal);
            QString error;
            EXPECT_TRUE(action(record, row.options, error));
            EXPECT_EQ(error, QString());
            EXPECT_EQ(record.newFilename(), q(row.expected)) << row.onDisk;
        }
    }

    TempTree tree;

private:
    int m_rows = 0;
};

}  // namespace tavrin::test
