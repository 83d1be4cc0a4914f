// SPDX-License-Identifier: MIT
#include "VyBookmarkList.h"

#include "VyBookmarkStore.h"
#include "VyFileSearch.h"
#include "VySystemBookmark.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>

#include <algorithm>

namespace {

// QLockFile's own wait looks again after 100, 200, 400... milliseconds, which is
// long for a lock that is held for a few.
bool lockWithin(QLockFile& lock, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!lock.tryLock(0)) {
        if (lock.error() != QLockFile::LockFailedError)
            return false;
        if (timer.hasExpired(milliseconds)) {
            // A process that was killed before it wrote its number into the file
            // would block all others for half a minute. This leaves the file
            // of one that lives, which holds a lock of the system's on it.
            return milliseconds > 0 && lock.removeStaleLockFile() && lock.tryLock(0);
        }
        QThread::msleep(5);
    }
    return true;
}

// QLockFile would wait for ever for somebody to write into a FIFO.
bool canBeLock(const QString& file)
{
    const QFileInfo info(file);
    return info.isFile() || (!info.exists() && !info.isSymLink());
}

void removeUpTo(const QDateTime& time, QList<VyBookmarkEntry>& entries)
{
    if (!time.isValid())
        return;
    entries.erase(std::remove_if(entries.begin(), entries.end(),
                                 [&time](const VyBookmarkEntry& entry) {
                                     return entry.bookmark.chosen <= time;
                                 }),
                  entries.end());
}

// Those that were chosen again later stay.
void dropRemoved(const QList<VyBookmark>& removed, QList<VyBookmarkEntry>& entries)
{
    const auto isRemoved = [&removed](const VyBookmarkEntry& entry) {
        return std::any_of(removed.begin(), removed.end(), [&entry](const VyBookmark& each) {
            return vyIsSamePath(entry.bookmark, each) && entry.bookmark.chosen <= each.chosen;
        });
    };
    entries.erase(std::remove_if(entries.begin(), entries.end(), isRemoved), entries.end());
}

} // namespace

CVyBookmarkList::CVyBookmarkList(const QString& file)
    : m_file(file)
{}

QList<VyBookmark> CVyBookmarkList::bookmarks()
{
    load();
    QList<VyBookmark> list;
    for (const VyBookmarkEntry& entry : qAsConst(m_entries))
        list.append(entry.bookmark);
    return list;
}

void CVyBookmarkList::add(const VyBookmark& bookmark)
{
    if (bookmark.path.isEmpty())
        return;
    if (bookmark.path.size() > VyBookmarkLimits::path ||
        bookmark.bytes.size() > VyBookmarkLimits::path) {
        warnOnce(QStringLiteral("a path of more than %1 characters is not noted")
                     .arg(VyBookmarkLimits::path));
        return;
    }
    VyBookmarkEntry entry = vyBookmarkEntry(bookmark);
    update([this, &entry] {
        entry.bookmark.chosen = timeOfChoice();
        put(entry);
    });
}

void CVyBookmarkList::remove(const VyBookmark& bookmark)
{
    update([this, &bookmark] {
        const VyBookmark removed{bookmark.path, timeOfChoice(), bookmark.bytes};
        dropRemoved({removed}, m_entries);
        dropRemoved({removed}, m_unsaved);
        m_removed.append(removed);
    });
}

void CVyBookmarkList::clear()
{
    update([this] {
        m_cleared = timeOfChoice();
        m_entries.clear();
        m_unsaved.clear();
    });
}

VyBookmark CVyBookmarkList::find(const VyBookmark& bookmark,
                                 std::unique_ptr<CVySystemBookmark>& access)
{
    load();
    VyBookmarkEntry entry;
    entry.bookmark = bookmark;
    const auto listed = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                     [&bookmark](const VyBookmarkEntry& known) {
                                         return vyIsSamePath(known.bookmark, bookmark);
                                     });
    const bool isListed = listed != m_entries.cend();
    if (isListed)
        entry = *listed;
    if (!entry.system.isEmpty())
        access = std::make_unique<CVySystemBookmark>(entry.system);

    const QByteArray chosen = vyNativePath(entry.bookmark);
    QByteArray now = chosen;
    if (!VyFileSearch::exists(now) && access)
        now = access->path();
    if (!VyFileSearch::exists(now))
        now = VyFileSearch::renamed(chosen, entry.file);
    if (now.isEmpty())
        return {};

    VyBookmark found = now == chosen ? entry.bookmark : vyBookmarkOfBytes(now);
    found.chosen = entry.bookmark.chosen;
    VyBookmarkEntry renewed = vyBookmarkEntry(found);
    const bool isOther = renewed.file.isKnown() && !vyIsSameFile(renewed.file, entry.file);
    const bool isRenewed = now != chosen || isOther || (access && access->isStale());
    if (isListed && isRenewed) {
        if (now != chosen)
            renewed.former = entry.bookmark;
        update([this, &renewed] { put(renewed); });
    }
    return found;
}

void CVyBookmarkList::load()
{
    if (m_isLoaded)
        return;
    m_isLoaded = true;
    if (m_file.isEmpty())
        return;
    const VyBookmarkFormat::Contents contents = VyBookmarkStore::read(m_file);
    takeOver(contents);
    // Put right at once, lest the damage be reported at each start.
    if (!contents.damage.isEmpty() && !update([] {}))
        warnOfDamage(contents, {});
}

// Makes the change to the list and, as far as that is possible, to the file.
bool CVyBookmarkList::update(const std::function<void()>& change)
{
    load();
    if (m_file.isEmpty()) {
        change();
        return true;
    }
    const QString problem = saveChange(change);
    if (problem.isEmpty()) {
        m_unsaved.clear();
        m_cleared = {};
        m_removed.clear();
        m_warnings.clear();
        return true;
    }
    warnOnce(
        QStringLiteral("%1 is not written, the list goes on in memory: %2").arg(m_file, problem));
    return false;
}

// Answers why the file is as it was; nothing when it is written.
QString CVyBookmarkList::saveChange(const std::function<void()>& change)
{
    const auto unsaved = [&change](const QString& problem) {
        change();
        return problem;
    };
    if (!VyBookmarkStore::makeFolder(m_file))
        return unsaved(QStringLiteral("its folder cannot be made"));
    const QString lockFile = m_file + QStringLiteral(".lock");
    if (!canBeLock(lockFile))
        return unsaved(lockFile + QStringLiteral(" is not a file"));
    QLockFile lock(lockFile);
    m_othersLetGo = lockWithin(lock, m_othersLetGo ? longestWait : 0);
    if (!m_othersLetGo)
        return unsaved(lock.error() == QLockFile::LockFailedError
                           ? QStringLiteral("another process holds it")
                           : QStringLiteral("its folder cannot be written to"));

    const VyBookmarkFormat::Contents contents = VyBookmarkStore::read(m_file);
    const bool isDamaged = !contents.damage.isEmpty();
    takeOver(contents);
    change();
    const VyBookmarkStore::Written written = VyBookmarkStore::write(m_file, m_entries, isDamaged);
    if (isDamaged)
        warnOfDamage(contents, written.keptAs);
    if (!written.replaced.isEmpty())
        warnOnce(written.replaced + QStringLiteral(" was deleted to make room"));
    return written.problem;
}

// What the file has, with what it does not have yet. A process that knows the
// list makes good what is damaged.
void CVyBookmarkList::takeOver(const VyBookmarkFormat::Contents& contents)
{
    QList<VyBookmarkEntry> known = contents.entries;
    if (!contents.damage.isEmpty())
        known = vyMergedEntries(known, m_entries);
    removeUpTo(m_cleared, known);
    dropRemoved(m_removed, known);
    m_entries = vyMergedEntries(m_unsaved, known);
}

void CVyBookmarkList::put(const VyBookmarkEntry& entry)
{
    m_unsaved = vyMergedEntries({entry}, m_unsaved);
    m_entries = vyMergedEntries({entry}, m_entries);
}

// After the latest choice: another process's clock may be ahead, ours may have
// been set back, and two choices can come in one millisecond. The text of a time
// ends with the year 9999.
QDateTime CVyBookmarkList::timeOfChoice() const
{
    QDateTime now = QDateTime::currentDateTimeUtc();
    if (m_entries.isEmpty())
        return now;
    const QDateTime last({9999, 12, 31}, {23, 59, 59, 999}, Qt::UTC);
    return qMin(last, qMax(now, m_entries.constFirst().bookmark.chosen.addMSecs(1)));
}

void CVyBookmarkList::warnOfDamage(const VyBookmarkFormat::Contents& contents,
                                   const QString& keptAs)
{
    const QString kept =
        keptAs.isEmpty() ? QStringLiteral("left as it is") : QStringLiteral("kept as ") + keptAs;
    warnOnce(QStringLiteral("%1 %2; what could be read of it is taken over, the file is %3")
                 .arg(m_file, contents.damage.join(QStringLiteral(", ")), kept));
}

void CVyBookmarkList::warnOnce(const QString& text)
{
    if (m_warnings.contains(text))
        return;
    m_warnings.insert(text);
    qWarning("VyHostKernel: bookmarks: %s", qPrintable(text));
}
