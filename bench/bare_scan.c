#include "bare_scan.h"

#include <dirent.h>
#include <fcntl.h>
#include <stdio.h>
#include <string.h>
#include <sys/types.h>
#include <unistd.h>

static ssize_t ReadOnce(int folder, const char* name, char* bytes, size_t size) {
  int file = openat(folder, name, O_RDONLY | O_CLOEXEC);
  if (file < 0) return -1;
  ssize_t count = read(file, bytes, size);
  close(file);
  return count;
}

static int ScanFolder(DIR* folder) {
  static const char kPrefix[] = "savegame.";
  int savegames = 0;
  const struct dirent* entry;
  while ((entry = readdir(folder)) != NULL) {
    if (strncmp(entry->d_name, kPrefix, sizeof kPrefix - 1) != 0) continue;

    char bytes[4096];
    char note[sizeof entry->d_name + sizeof "note.txt"];
    if (ReadOnce(dirfd(folder), entry->d_name, bytes, 77) != 77) continue;
    snprintf(note, sizeof note, "note%s.txt", entry->d_name + sizeof kPrefix - 1);
    if (ReadOnce(dirfd(folder), note, bytes, sizeof bytes) <= 0) continue;
    ++savegames;
  }
  return savegames;
}

int BareScan(const char* archive, const char* base_name) {
  int savegames = 0;
  for (int k = 1;; ++k) {
    char path[4096];
    snprintf(path, sizeof path, "%s/%s%d", archive, base_name, k);
    DIR* folder = opendir(path);
    if (folder == NULL) return savegames;
    savegames += ScanFolder(folder);
    closedir(folder);
  }
}
