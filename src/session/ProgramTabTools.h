#pragma once

#include <QString>

namespace brevaro {

struct SessionCore;

// The helpers of the Program Info and Permissions tabs: file names and sizes from the
// distribution file, the expiry group, the default texts and their text files.
class ProgramTabTools {
public:
    explicit ProgramTabTools(SessionCore& core);

    void openFileInfo();
    void expiryCheckClicked();
    void expiryOptionClicked(int option);
    // The default distribution text (0) or licence agreement (1) of the current records.
    QString defaultText(int which) const;
    void insertDefaultText(int which, const QString& box);
    void loadText(const QString& box);
    void saveText(const QString& box);

private:
    SessionCore& m_core;
};

} // namespace brevaro
