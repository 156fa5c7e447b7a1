# What scripts/fuzz and fuzz/campaign share: the targets, their options,
# the fuzz build and the sanitizers' settings. Sourced from the top of the
# tree, never run.

# Every target, and those scripts/fuzz (and so scripts/test) runs when none
# is named: all of them.
fuzz_all_targets=(fuzz_catalog fuzz_inventory fuzz_xml fuzz_compare_version fuzz_velstring fuzz_unpack)
fuzz_default_targets=(fuzz_catalog fuzz_inventory fuzz_compare_version fuzz_velstring fuzz_unpack fuzz_xml)
fuzz_build_dir=build/fuzz

# The options of a target: its dictionary and input size limit.
fuzz_target_flags() {
  case "$1" in
    fuzz_catalog) echo "-dict=fuzz/xml.dict -max_len=16384" ;;
    fuzz_inventory) echo "-dict=fuzz/xml.dict -max_len=8192" ;;
    fuzz_xml) echo "-dict=fuzz/xml.dict -max_len=4096" ;;
    fuzz_compare_version) echo "-max_len=256" ;;
    fuzz_velstring) echo "-max_len=512" ;;
    fuzz_unpack) echo "-max_len=65536 -rss_limit_mb=512" ;;
  esac
}

# Installs what is missing and builds every target in build/fuzz (clang-14).
# Returns non-zero when the build fails.
fuzz_build() {
  scripts/setup </dev/null || return 2
  echo "== fuzz build ($fuzz_build_dir)"
  CC=clang-14 CXX=clang++-14 scripts/build "$fuzz_build_dir" \
    -DCMAKE_CXX_COMPILER=clang++-14 \
    -DQRMKIT_BUILD_FUZZ=ON -DQRMKIT_BUILD_TESTS=OFF -DQRMKIT_BUILD_TOOLS=OFF \
    -DQRMKIT_BUILD_BENCH=OFF -DQRMKIT_SANITIZE=OFF </dev/null
}

# Leak checks on, symbolised reports, every report fatal.
fuzz_export_sanitizer_options() {
  local symbolizer
  symbolizer="$(command -v llvm-symbolizer-14 || command -v llvm-symbolizer || true)"
  export ASAN_OPTIONS="detect_leaks=1:symbolize=1:strict_string_checks=1:detect_stack_use_after_return=1${symbolizer:+:external_symbolizer_path=$symbolizer}"
  export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1${symbolizer:+:external_symbolizer_path=$symbolizer}"
}

# Sums libFuzzer's final "stat::<name>:" lines over the logs given.
fuzz_stat_sum() {
  local name="$1"
  shift
  awk -v key="stat::$name:" '$1 == key { sum += $2 } END { print sum + 0 }' "$@" /dev/null
}
