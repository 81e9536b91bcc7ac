/* What the programs of all records share. C89, so that old compilers take it. */
#include <stddef.h>
#include <stdio.h>

#define PROBE_MOST 256
#define PROBE_AT(member) ((unsigned long)((char*)&((RECORD*)0)->member - (char*)0))
#define PROBE_SIZE(member) ((unsigned long)sizeof(((RECORD*)0)->member))

/* A member that the bridge has, at `offset` with `bytes` in all. */
#define CHECK(member, name, offset, bytes) \
  probe_check(name, offset, bytes, PROBE_AT(member), PROBE_SIZE(member));

/* A member of the library alone, for names.h. */
#define SHOW(member)                                                                       \
  printf("      %s is at %lu in the library, with %lu bytes\n", #member, PROBE_AT(member), \
         PROBE_SIZE(member));

static struct {
  const char* name;
  unsigned long offset, bytes, library_offset, library_bytes;
} probe_found[PROBE_MOST];
static int probe_count = 0;
static const char* probe_unknown[PROBE_MOST];
static int probe_unknown_count = 0;
static int probe_ranges = 0;

static void probe_check(const char* name, unsigned long offset, unsigned long bytes,
                        unsigned long library_offset, unsigned long library_bytes) {
  probe_found[probe_count].name = name;
  probe_found[probe_count].offset = offset;
  probe_found[probe_count].bytes = bytes;
  probe_found[probe_count].library_offset = library_offset;
  probe_found[probe_count].library_bytes = library_bytes;
  ++probe_count;
}

/* A member whose name the header does not know. */
static void probe_not_known(const char* name) { probe_unknown[probe_unknown_count++] = name; }

static int probe_members_differ(void) {
  int at;
  for (at = 0; at < probe_count; ++at) {
    if (probe_found[at].offset != probe_found[at].library_offset ||
        probe_found[at].bytes != probe_found[at].library_bytes) {
      return 1;
    }
  }
  return 0;
}

/* A member is told where it moved otherwise than the one before it; the others are counted. */
static void probe_tell_differences(void) {
  long shift = 0;
  int along = 0;
  int at;
  for (at = 0; at < probe_count; ++at) {
    const long moved = (long)probe_found[at].library_offset - (long)probe_found[at].offset;
    if (moved != shift) {
      printf("; %s at %lu, in the library at %lu", probe_found[at].name, probe_found[at].offset,
             probe_found[at].library_offset);
      shift = moved;
    } else if (moved != 0) {
      ++along;
    }
    if (probe_found[at].bytes != probe_found[at].library_bytes) {
      printf("; %s has %lu bytes, in the library %lu", probe_found[at].name, probe_found[at].bytes,
             probe_found[at].library_bytes);
    }
  }
  if (along > 0) {
    printf("; %d more moved along", along);
  }
}

/* Prints the line of the record. Returns 0 where all agrees, 1 where something differs, 2 where
   nothing differs but the header does not know a member. */
static int probe_verdict(const char* record, const char* place, unsigned long bytes,
                         unsigned long library_bytes) {
  const int differs = bytes != library_bytes || probe_members_differ();
  int at;
  printf("%s  %-38s ", differs ? "DIFF" : probe_unknown_count > 0 ? "NAME" : "ok  ", record);
  if (bytes != library_bytes) {
    printf("%lu here, %lu in the library", bytes, library_bytes);
  } else if (differs || probe_unknown_count > 0) {
    printf("%lu bytes agree", bytes);
  } else {
    printf("%lu bytes, %d member%s\n", bytes, probe_count, probe_count == 1 ? "" : "s");
    return 0;
  }
  probe_tell_differences();
  for (at = 0; at < probe_unknown_count; ++at) {
    printf("%s%s", at == 0 ? "; the header does not know " : ", ", probe_unknown[at]);
  }
  printf("     %s\n", place);
  return differs ? 1 : 2;
}

/* Bytes that no member of the bridge explains. */
static void probe_bytes(unsigned long first, unsigned long last) {
  printf(probe_ranges++ == 0 ? "      bytes %lu to %lu" : ", %lu to %lu", first, last);
}

static void probe_end(void) {
  if (probe_ranges > 0) {
    printf(" are unknown here\n");
  }
}
