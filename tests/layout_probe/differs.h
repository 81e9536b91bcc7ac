/* A library whose records are otherwise than the bridge has them. */
typedef struct {
  char user_id[257];
  int set_passwd;
  char passwd[257];
  int last_login;
  int account_type, role, account_enable;
} Account;

typedef struct {
  char hgname[33];
} HGName;

typedef struct {
  unsigned char valid;
  char hgname[65];
} HGInfo;

typedef struct {
  unsigned char security;
  HGInfo hg[128];
} HGPortInfo;

struct host_command {
  int reads, writes;
};

typedef struct {
  int display_panel, first, rs232c, second;
} StatisticalShuuhen;

typedef struct {
  int tm_sec, tm_min, tm_hour, tm_mday, tm_mon, tm_year, tm_wday, tm_yday;
} QVTime;
