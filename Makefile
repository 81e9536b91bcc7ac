# The commands of the README. Each installs what is missing first; that needs Debian and root.
BUILD := build/linux
JAVA := java -Djava.library.path=$(BUILD)/lib
# Large records go back to the system at once: what is resident is what is held.
SOAK_JAVA := MALLOC_MMAP_THRESHOLD_=131072 $(JAVA) -cp $(BUILD)/lib/quorvelj.jar:$(BUILD)/lib/tests.jar \
  -Xms512m -Xmx512m -XX:+AlwaysPreTouch
SOAK_SECONDS := 1800

.PHONY: tour test check mutants benchmark chart coverage soak dist version reference probe clean
.PHONY: packages-build packages-test packages-check packages-benchmark packages-coverage packages-dist

tour: packages-build
	cmake --preset linux -DQUORVELJ_TESTS=OFF -DQUORVELJ_BENCHMARKS=OFF
	cmake --build --preset linux
	$(JAVA) -cp $(BUILD)/lib/quorvelj.jar:$(BUILD)/lib/array-tour.jar ArrayTour

test: packages-test
	scripts/test.sh

check: packages-check
	scripts/check.sh

mutants: packages-test
	scripts/mutants.sh

# What a call costs, then the ways side by side. `make chart` draws docs/ways.svg from the second.
benchmark: packages-benchmark
	cmake --preset linux -DQUORVELJ_TESTS=ON -DQUORVELJ_BENCHMARKS=ON -DQUORVELJ_CACHE_IDS=ON
	cmake --build --preset linux
	$(BUILD)/lib/benchmarks --benchmark_min_time=3
	$(BUILD)/lib/ways $(BUILD)/ways.tsv

chart: packages-benchmark
	scripts/chart.py $(BUILD)/ways.tsv docs/ways.svg

coverage: packages-coverage
	scripts/coverage.sh

# For half an hour, a line each minute.
soak: packages-test
	cmake --preset linux -DQUORVELJ_TESTS=ON -DQUORVELJ_BENCHMARKS=OFF
	cmake --build --preset linux --target simulator_control
	$(SOAK_JAVA) ThreadedCalls valid $(SOAK_SECONDS) 60

reference: packages-test
	cmake --preset linux -DQUORVELJ_TESTS=ON -DQUORVELJ_BENCHMARKS=OFF
	cmake --build --preset linux --target write_reference

# Into build/linux/layout-probe; docs/settling-layouts.md says what to do with it.
probe: packages-build
	cmake --preset linux -DQUORVELJ_TESTS=OFF -DQUORVELJ_BENCHMARKS=OFF
	cmake --build --preset linux --target write_probe

dist: packages-dist
	scripts/dist.sh

# make version VERSION=1.2.3; CONTRIBUTING.md says when.
version:
	scripts/version.sh "$$VERSION"

packages-build packages-test packages-check packages-benchmark packages-coverage packages-dist:
	scripts/install-packages.sh $(@:packages-%=%)

clean:
	rm -rf build dist
