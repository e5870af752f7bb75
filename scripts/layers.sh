#!/usr/bin/env bash
# Fails when a source file includes a header of a layer above its own: the folders of src stand on
# one another in one direction only. Folders of one rank know nothing of each other. Fails too when
# one system's calls, headers or folders are named outside base/port and base/SystemCalls.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Rank of a folder; a folder "views" lies above all cores and the controls, and among themselves the
# views stand in the order of their subsystems.
ranks='base=0 help=1 link=1 programset=2 session=3 jobs=4 statustable=5 targetboard=5 pls=5
  reports=5 trending=6 results=6 controls=7 views=8 shell=9 app=10 cli=10'

git grep -n '^#include "' -- 'src/*.h' 'src/*.cpp' | awk -v ranks="$ranks" '
  function layer(path, part) {
    split(path, part, "/")
    return part[2] == "views" ? part[1] "/views" : part[1]
  }
  function rank(name, views) {
    views = sub("/views$", "", name)
    if (!(name in rank_of)) {
      print "scripts/layers.sh does not know the folder " name
      unknown = 1
    }
    return views ? rank_of["views"] + rank_of[name] / 10 : rank_of[name]
  }
  BEGIN {
    for (i = split(ranks, all, " "); i > 0; --i) {
      split(all[i], pair, "=")
      rank_of[pair[1]] = pair[2]
    }
  }
  {
    split($0, piece, "\"")
    place = piece[1]
    sub("^src/", "", place)
    user = layer(place)
    used = layer(piece[2])
    if (user == used || rank(used) < rank(user))
      next
    print "against the layers: " $0
    wrong = 1
  }
  END { exit wrong || unknown }'

# What exists on one system alone.
headers='unistd|fcntl|termios|poll|dirent|pwd|grp|spawn|dlfcn|pthread|sched|syslog|io|direct|windows|qt_windows|winbase|sys/[a-z]+|linux/[a-z]+|net[a-z]*/[a-z]+'
calls='ioctl|fsync|fdatasync|isatty|_isatty|statvfs|getpid|geteuid|getuid|fork|exec[lv]p?|sigaction|setenv|clock_gettime|localtime_r|strcasecmp|udev_[a-z_]+|GetShortPathName[AW]?|GetDriveType[AW]?'
folders='dev|proc|sys|etc|usr|var|tmp|home'
if git grep -nE "#include <($headers)(\.h)?>|\b($calls) ?\(|\"/($folders)(/|\")|Q_OS_|\b_WIN32\b|\b__linux__\b" \
  -- 'src/*.h' 'src/*.cpp' ':!src/base/port' ':!src/base/SystemCalls.*' |
  grep -vE '^[^:]*:[0-9]+: *//'; then
  echo 'one system alone: the lines above belong into src/base/port or src/base/SystemCalls.cpp' >&2
  exit 1
fi
