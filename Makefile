# The commands of the README. Each installs what is missing first; that needs Debian and root.
BUILD := build/linux
JAVA := java -Djava.library.path=$(BUILD)/lib

.PHONY: tour test benchmark dist reference clean packages-build packages-test packages-dist

tour: packages-build
	cmake --preset linux -DQUORVELJ_TESTS=OFF
	cmake --build --preset linux
	$(JAVA) -cp $(BUILD)/lib/quorvelj.jar:$(BUILD)/lib/array-tour.jar ArrayTour

test: packages-test
	scripts/test.sh

benchmark: packages-test
	cmake --preset linux -DQUORVELJ_BENCHMARKS=ON
	cmake --build --preset linux
	$(BUILD)/lib/benchmarks --benchmark_min_time=3

reference: packages-test
	cmake --preset linux
	cmake --build --preset linux --target write_reference

dist: packages-dist
	scripts/dist.sh

packages-build packages-test packages-dist:
	scripts/install-packages.sh $(@:packages-%=%)

clean:
	rm -rf build dist
