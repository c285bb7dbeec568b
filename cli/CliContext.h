#pragma once

#include "AutoPrompts.h"
#include "CliArgs.h"
#include "session/EditingSession.h"
#include "store/HomeLock.h"
#include "store/RecordStore.h"

#include <QIODevice>
#include <functional>

namespace brevaro::cli {

// What a command works with: the home's records, the streams, and the home lock.
class CliContext {
public:
    CliContext(AppHome home, QIODevice& in, QIODevice& out, QIODevice& err);

    RecordStore& store() { return m_store; }
    const AppHome& home() const { return m_store.home(); }
    QIODevice& in() { return m_in; }

    // Takes the home lock and completes an interrupted deletion; every command that writes
    // calls it before touching a file.
    void lockForWriting();
    // Writes the changes the command gathered, all of them or none.
    void finish();
    // Checks the home before anything is read: a deletion that another writer is running is
    // waited for, an interrupted one completed (taking the lock only then). Damage is reported
    // for every program file, or, with companyId, for that company's only (none below 0).
    void prepareForReading(int companyId = 0);
    // Runs read until no writer changed the companies meanwhile, so that a reader never
    // shows half of a company deletion; its output.
    QByteArray readStable(const std::function<QByteArray()>& read);

    // A company or program by 1-based number or exact name; bad input when there is none.
    int company(const QString& which);
    int program(int company, const QString& which);
    // The CompanyID stored in company n, which names its program file.
    int companyId(int company);

    // The main window's session, started on the home as a freshly opened window; the first
    // call takes the home lock.
    EditingSession& session();
    // The same for a command that only reads the home: no lock is taken, so it works while
    // the window holds the home (an interrupted deletion is still completed first).
    EditingSession& readingSession();
    AutoPrompts& prompts() { return m_prompts; }
    // Shows company c (and program p when above 0) as a user would select them.
    void select(int company, int program = 0);
    // Bad input when the session reported a problem through a message.
    void failOnMessages();

    // Output on stdout; a command that writes has it held until its changes are saved.
    void print(const QString& text) { printBytes(text.toUtf8()); }
    // A warning line on stderr, not ending the command.
    void warn(const QString& text);
    // Reports problems of the record files once, as warnings: the company file and the program
    // files of every company, or of the company with that id only.
    void warnAboutDamage(int companyId = 0);
    void warnAboutProgramFile(int companyId);
    void printBytes(const QByteArray& bytes);

private:
    RecordStore m_store;
    HomeLock m_lock;
    AutoPrompts m_prompts;
    std::unique_ptr<EditingSession> m_session;
    void waitForDeletion();

    QIODevice& m_in;
    QIODevice& m_out;
    QIODevice& m_err;
    bool m_warned = false;
    bool m_holdOutput = false;
    QByteArray m_heldOutput;
};

} // namespace brevaro::cli
