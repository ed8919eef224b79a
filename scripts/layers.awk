#!/usr/bin/awk -f
# Reads sources and CMakeLists.txt and names every include and every link that leads up, and every
# file below the main window that names its class. Status 1 if there is any.
#
# usage: scripts/layers.awk $(git ls-files '*.h' '*.cpp' '*.inc' '*CMakeLists.txt')

# The folders from below. One may include and link itself and what stands on the lines before its
# own; folders on one line know nothing of each other.
BEGIN {
  Add("engines controls")
  Add("moon")
  Add("calendars")
  Add("state help")
  Add("moment")
  Add("log lunation_view navigation")
  Add("sky")
  Add("lists")
  Add("app")
  Add("desktop")
  Add("tools")
  Add("tests benchmarks fuzz")
}

function Add(folders,    names, count, i) {
  ++levels
  count = split(folders, names, " ")
  for (i = 1; i <= count; ++i) level[names[i]] = levels
}

function FolderOf(path) { return path ~ /\// ? substr(path, 1, index(path, "/") - 1) : "" }

function Fail(place, what) {
  print place ": " what > "/dev/stderr"
  failed = 1
}

function MayUse(user, used) { return user == used || level[used] < level[user] }

FNR == 1 {
  folder = FolderOf(FILENAME)
  source = FILENAME !~ /CMakeLists\.txt$/
  if (source && !(folder in level)) Fail(FILENAME, "its folder has no place in scripts/layers.awk")
}

source && /^[ \t]*#[ \t]*include[ \t]*["<]/ {
  split($0, parts, /["<>]/)
  used = FolderOf(parts[2])
  own = $0 ~ /"/
  if (own && !(used in level) && parts[2] !~ /\.moc$/) {
    Fail(FILENAME ":" FNR, "\"" parts[2] "\" does not begin with a folder of scripts/layers.awk")
  } else if (used in level && !MayUse(folder, used)) {
    Fail(FILENAME ":" FNR, folder "/ may not include \"" parts[2] "\"")
  }
}

source && level[folder] < level["app"] && /(^|[^A-Za-z0-9_])frmMain([^A-Za-z0-9_]|$)/ {
  Fail(FILENAME ":" FNR, "names frmMain, which lies above " folder "/")
}

!source && /add_(library|executable)\(tarnwick/ {
  split($0, parts, /[( )]/)
  owner[parts[2]] = folder
}

# What links what is judged at the end, when every library's folder is known.
!source && /target_link_libraries\(/ { linking = 1; sub(/.*target_link_libraries\([^ ]*/, "") }
linking {
  line = $0
  while (match(line, /tarnwick_[a-z_]+/)) {
    link_place[++links] = FILENAME ":" FNR
    link_folder[links] = folder
    linked[links] = substr(line, RSTART, RLENGTH)
    line = substr(line, RSTART + RLENGTH)
  }
  if (/\)/) linking = 0
}

END {
  for (i = 1; i <= links; ++i) {
    used = owner[linked[i]]
    if (!MayUse(link_folder[i], used)) {
      Fail(link_place[i], link_folder[i] "/ may not link " linked[i] " of " used "/")
    }
  }
  exit failed
}
