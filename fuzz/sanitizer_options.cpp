// Options of AddressSanitizer for fuzzing. An image of more pixels than fit into this memory is refused, as if there
// were no more; checking larger blocks would take most of the time.
extern "C" const char* __asan_default_options();  // NOLINT(bugprone-reserved-identifier): its name is prescribed.
extern "C" const char* __asan_default_options() {
  return "allocator_may_return_null=1:max_allocation_size_mb=24:quarantine_size_mb=16";
}
