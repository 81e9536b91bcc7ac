namespace quorvelj {

/// Name and version, found in the library's file behind the mark that `what` looks for.
extern const char kVersion[];
[[gnu::used]] const char kVersion[] = "@(#)quorvelj " QUORVELJ_VERSION;

}  // namespace quorvelj
