/* The least that any scan of an archive has to do. */
#ifndef VELLUMARK_BENCH_BARE_SCAN_H_
#define VELLUMARK_BENCH_BARE_SCAN_H_

#ifdef __cplusplus
extern "C" {
#endif

/* Lists the sub-folders 1, 2, 3, ... of an archive; of each savegame there it reads the first 77
   bytes and the whole note. Keeps nothing. The number of savegames whose bytes and note could be
   read. */
int BareScan(const char* archive, const char* base_name);

#ifdef __cplusplus
}
#endif

#endif /* VELLUMARK_BENCH_BARE_SCAN_H_ */
