# Thin wrapper over CMake. `make demo` and `make test` do all the set-up a fresh
# Debian machine needs (scripts/bootstrap installs missing packages as root).
BUILD ?= build
ASAN_BUILD ?= build-asan
COVERAGE_BUILD ?= build-coverage
JOBS ?= $(shell nproc 2>/dev/null || echo 2)
GENERATOR := $(shell command -v ninja >/dev/null 2>&1 && echo "-G Ninja")
CMAKE_FLAGS ?=

.PHONY: all bootstrap configure build test demo bench asan coverage package clean

all: build

bootstrap:
	@bash scripts/bootstrap

configure: bootstrap
	@cmake -S . -B $(BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS) >/dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

test: build
	@cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

demo: build
	@$(BUILD)/tools/vtyconf/vtyconf demo

bench: bootstrap
	@cmake -S . -B $(BUILD)-bench $(GENERATOR) -DCMAKE_BUILD_TYPE=Release -DVTYCONF_BUILD_BENCH=ON -DVTYCONF_BUILD_TESTS=OFF >/dev/null
	@cmake --build $(BUILD)-bench -j $(JOBS)
	@bash bench/run_all.sh $(BUILD)-bench

# Line and function coverage of the library and the program by the whole suite
# (the consumer builds aside). Needs gcovr (scripts/bootstrap coverage).
coverage: bootstrap
	@bash scripts/bootstrap coverage
	@cmake -S . -B $(COVERAGE_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=--coverage -DCMAKE_EXE_LINKER_FLAGS=--coverage -DCMAKE_SHARED_LINKER_FLAGS=--coverage $(CMAKE_FLAGS) >/dev/null
	@cmake --build $(COVERAGE_BUILD) -j $(JOBS)
	@find $(COVERAGE_BUILD) -name '*.gcda' -delete
	@cd $(COVERAGE_BUILD) && ctest --output-on-failure -j $(JOBS) -LE consumer
	@gcovr -r . --filter backend/ --filter tools/ --print-summary -o $(COVERAGE_BUILD)/coverage.txt $(COVERAGE_BUILD)

package: build
	@bash scripts/package-check $(BUILD)

asan: bootstrap
	@cmake -S . -B $(ASAN_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Debug -DVTYCONF_SANITIZE=ON $(CMAKE_FLAGS) >/dev/null
	@cmake --build $(ASAN_BUILD) -j $(JOBS)
	@cd $(ASAN_BUILD) && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j $(JOBS) -LE consumer

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(COVERAGE_BUILD) $(BUILD)-bench
