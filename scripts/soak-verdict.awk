#!/usr/bin/awk -f
# Reads the samples of soak.sh, prints what the program took, and fails if that grew.
# A sample: second, anonymous and resident memory in kB, handles, threads, CPU time in 1/100 s.
# Compared are medians over the second and the last fifth of the samples: what is taken once, at first
# use, is there by then, and a single list that was open does not count.

BEGIN {
  split("anonymous_memory_kB resident_memory_kB handles threads", name)
  # What may be added. What is made at some first use comes late in a short run; a leak shows in a long one.
  split("8192 12288 3 2", allowed_in_short_run)
  split("2048 3072 3 2", allowed_in_long_run)
  long_run = 20 * 60 # s
}

{
  for (i = 1; i <= 4; ++i) value[i, NR] = $(i + 1)
  cpu[NR] = $6 / 100
  second[NR] = $1
}

# The median of column i over the samples from `first` to `last`.
function median(i, first, last,    n, k, j, sorted, x) {
  n = 0
  for (k = first; k <= last; ++k) {
    x = value[i, k]
    for (j = n++; j > 0 && sorted[j] > x; --j) sorted[j + 1] = sorted[j]
    sorted[j + 1] = x
  }
  return sorted[int((n + 1) / 2)]
}

function largest(i,    k, most) {
  for (k = 1; k <= NR; ++k) if (value[i, k] > most) most = value[i, k]
  return most
}

END {
  if (NR < 10) {
    print NR " samples are too few"
    exit 1
  }
  fifth = int(NR / 5)
  is_long = second[NR] - second[1] >= long_run
  printf "%-20s %8s %13s %11s %8s\n", "", "start", "second fifth", "last fifth", "largest"
  for (i = 1; i <= 4; ++i) {
    before = median(i, fifth + 1, 2 * fifth)
    after = median(i, NR - fifth + 1, NR)
    grown = after - before > (is_long ? allowed_in_long_run[i] : allowed_in_short_run[i])
    failed = failed || grown
    printf "%-20s %8d %13d %11d %8d%s\n", name[i], value[i, 1], before, after, largest(i),
      grown ? "  grows" : ""
  }
  printf "%d samples, CPU time %.0f s of %d s\n", NR, cpu[NR] - cpu[1], second[NR] - second[1]
  print failed ? "NOT FLAT" : "flat"
  exit failed
}
