/* The least that any program must do for the same work, and the maker of the folders to do it in:
 *   floor make DIR COUNT    COUNT empty files, one in ten of which rules-20.json matches
 *   floor list DIR          list the folder and read the status of every file
 *   floor move DIR TARGET   the same, and rename every tenth file into TARGET
 *   floor back DIR TARGET   undo that: rename everything in TARGET into DIR
 */
#define _GNU_SOURCE
#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

static void fail(const char* what) {
    fprintf(stderr, "floor: %s: %s\n", what, strerror(errno));
    exit(1);
}

enum { day = 86400 };

struct Sample {
    const char* format;
    off_t size;
    time_t age;
};

/* What one of the rules takes. */
static const struct Sample matched[] = {
    {"invoice-%06d.pdf", 90000, 12 * day},
    {"Screenshot 2025-03-04 at 09.12.%06d.png", 400000, 40 * day},
    {"IMG_%06d.HEIC", 2000000, 90 * day},
    {"stmt_202411_%06d.pdf", 70000, 300 * day},
    {"backup-%06d.tar.gz", 5000000, 20 * day},
    {"installer-%06d.dmg", 80000000, 100 * day},
    {"lecture %06d.mp4", 200000000, 30 * day},
    {"notes %06d.md", 3000, 2500 * day},
    {"export_%06d.csv", 9000, 5 * day},
    {"scan%06d.pdf", 4000, 2 * day},
};

/* What every rule is asked about, and none takes. */
static const struct Sample unmatched[] = {
    {"DSC%06d.jpg", 3000000, 200 * day},     {"report %06d.docx", 45000, 60 * day},
    {"holiday-%06d.png", 900000, 500 * day}, {"song %06d.mp3", 6000000, 800 * day},
    {"draft %06d.txt", 2000, 9 * day},       {"slides-%06d.pptx", 1500000, 70 * day},
    {"clip%06d.mov", 20000000, 33 * day},    {"main_%06d.cpp", 7000, 15 * day},
    {"data.%06d.json", 12000, 3 * day},      {"\303\234bersicht %06d.pdf", 250000, 45 * day},
    {"paper-%06d.pdf", 800000, 400 * day},
};

enum { matchedCount = sizeof matched / sizeof *matched };
enum { unmatchedCount = sizeof unmatched / sizeof *unmatched };

static void make(const char* folder, int count) {
    if (mkdir(folder, 0755) != 0)
        fail(folder);
    const int at = open(folder, O_RDONLY | O_DIRECTORY);
    if (at < 0)
        fail(folder);
    const time_t now = time(NULL);
    for (int i = 0; i < count; ++i) {
        const struct Sample* sample =
            i % 10 == 0 ? &matched[i / 10 % matchedCount] : &unmatched[i % unmatchedCount];
        char name[NAME_MAX + 1];
        snprintf(name, sizeof name, sample->format, i);
        const int file = openat(at, name, O_WRONLY | O_CREAT | O_EXCL, 0644);
        if (file < 0 || ftruncate(file, sample->size) != 0)
            fail(name);
        const struct timespec times[2] = {{.tv_sec = now - sample->age},
                                          {.tv_sec = now - sample->age}};
        if (futimens(file, times) != 0 || close(file) != 0)
            fail(name);
    }
    close(at);
    sync();
}

static void moveBack(const char* folder, const char* target) {
    const int to = open(folder, O_RDONLY | O_DIRECTORY);
    DIR* listing = opendir(target);
    if (to < 0 || listing == NULL)
        fail(target);
    for (const struct dirent* entry; (entry = readdir(listing)) != NULL;)
        if (entry->d_name[0] != '.' &&
            renameat(dirfd(listing), entry->d_name, to, entry->d_name) != 0)
            fail(entry->d_name);
    closedir(listing);
    close(to);
    sync();
}

static void walk(const char* folder, int target) {
    DIR* listing = opendir(folder);
    if (listing == NULL)
        fail(folder);
    const int at = dirfd(listing);
    int count = 0;
    for (const struct dirent* entry; (entry = readdir(listing)) != NULL;) {
        if (entry->d_name[0] == '.')
            continue;
        struct statx status;
        if (statx(at, entry->d_name, AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS | STATX_BTIME,
                  &status) != 0)
            fail(entry->d_name);
        if (target >= 0 && count % 10 == 0 &&
            renameat(at, entry->d_name, target, entry->d_name) != 0)
            fail(entry->d_name);
        ++count;
    }
    closedir(listing);
}

static int openTarget(const char* path) {
    if (mkdir(path, 0755) != 0 && errno != EEXIST)
        fail(path);
    const int target = open(path, O_RDONLY | O_DIRECTORY);
    if (target < 0)
        fail(path);
    return target;
}

int main(int argc, char** argv) {
    if (argc == 4 && strcmp(argv[1], "make") == 0)
        make(argv[2], atoi(argv[3]));
    else if (argc == 3 && strcmp(argv[1], "list") == 0)
        walk(argv[2], -1);
    else if (argc == 4 && strcmp(argv[1], "move") == 0)
        walk(argv[2], openTarget(argv[3]));
    else if (argc == 4 && strcmp(argv[1], "back") == 0)
        moveBack(argv[2], argv[3]);
    else {
        fprintf(stderr, "usage: floor make DIR COUNT | list DIR | move|back DIR TARGET\n");
        return 2;
    }
    return 0;
}
