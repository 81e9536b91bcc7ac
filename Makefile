# The commands of the README. Each installs what is missing first; that needs Debian and root.
BUILD := build/linux
JAVA := java -Djava.library.path=$(BUILD)/lib

.PHONY: tour test check mutants benchmark dist reference clean
.PHONY: packages-build packages-test packages-check packages-dist

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

benchmark: packages-test
	cmake --preset linux -DQUORVELJ_TESTS=ON -DQUORVELJ_BENCHMARKS=ON
	cmake --build --preset linux
	$(BUILD)/lib/benchmarks --benchmark_min_time=3

reference: packages-test
	cmake --preset linux -DQUORVELJ_TESTS=ON -DQUORVELJ_BENCHMARKS=OFF
	cmake --build --preset linux --target write_reference

dist: packages-dist
	scripts/dist.sh

packages-build packages-test packages-check packages-dist:
	scripts/install-packages.sh $(@:packages-%=%)

clean:
	rm -rf build dist
