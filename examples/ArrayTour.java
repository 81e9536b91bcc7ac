public class ArrayTour { public static void main(String[] a) {} }
