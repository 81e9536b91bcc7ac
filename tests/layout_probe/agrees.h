/* A library whose records are as the bridge has them. */
typedef struct {
  char user_id[257];
  int set_passwd;
  char passwd[257];
  int account_type, role, account_enable;
} Account;

typedef struct {
  char hgname[33];
} HGName;

typedef struct {
  unsigned char valid;
  char hgname[33];
} HGInfo;

typedef struct {
  unsigned char security;
  HGInfo hg[128];
} HGPortInfo;

typedef struct {
  int reads, writes;
} StatisticalHostCommand_Info;

typedef struct {
  int panel, first, rs232c, second;
} StatisticalShuuhen;

typedef struct {
  int tm_sec, tm_min, tm_hour, tm_mday, tm_mon, tm_year, tm_wday, tm_yday, tm_isdst;
} QVTime;
