// Options of AddressSanitizer for fuzzing. Images with more pixels than this memory holds are refused, as if memory had
// run out, because checking larger blocks would take most of the time. The largest table, that of Oklab, has 32 MiB.
extern "C" const char* __asan_default_options();  // NOLINT(bugprone-reserved-identifier): its name is prescribed.
extern "C" const char* __asan_default_options() {
  return "allocator_may_return_null=1:max_allocation_size_mb=40:quarantine_size_mb=16";
}
