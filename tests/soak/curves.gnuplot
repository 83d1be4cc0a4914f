# SPDX-License-Identifier: MIT
# curves.gnuplot TABLE PICTURE
set terminal svg size 720,640 font 'sans-serif,11' background 'white'
set output ARG2
set datafile separator tab
set key outside right autotitle columnhead
set grid lw 0.5
set xrange [0:*]
set multiplot layout 3,1
set yrange [0:*]
set ylabel 'MiB'
plot ARG1 using 1:($2/1024) with lines lw 1.5 title 'heap', \
     ARG1 using 1:($3/1024) with lines lw 1.5 title 'resident memory'
set ylabel
plot for [i=4:8] ARG1 using 1:i with lines lw 1.5
set xlabel 'requests'
plot for [i=9:12] ARG1 using 1:i with lines lw 1.5
unset multiplot
