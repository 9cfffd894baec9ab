<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: The Kelto developers -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="zh_CN">
<context>
    <name>Beam</name>
    <message>
        <source>%1: enter at most half of the diameter.</source>
        <translation>%1：不得大于外径的一半。</translation>
    </message>
</context>
<context>
    <name>Calculator</name>
    <message>
        <source>This task has no calculation.</source>
        <translation>该任务没有计算。</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; is unknown.</source>
        <translation>未知单位“%1”。</translation>
    </message>
    <message>
        <source>%1: enter a number.</source>
        <translation>%1：请输入数值。</translation>
    </message>
    <message>
        <source>%1: choose one of the values on offer.</source>
        <translation>%1：请从可选值中选择一个。</translation>
    </message>
</context>
<context>
    <name>InputCheck</name>
    <message>
        <source>%1: enter a number greater than zero.</source>
        <translation>%1：请输入大于零的数。</translation>
    </message>
    <message>
        <source>%1: enter zero or a number greater than zero.</source>
        <translation>%1：请输入零或大于零的数。</translation>
    </message>
    <message>
        <source>These values are too large or too small to calculate with. Check the number of digits.</source>
        <translation>数值过大或过小，无法计算。请检查位数。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Task</source>
        <translation>任务(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Choose task...</source>
        <translation>选择任务(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Calculate (F5) gives results and plots here.</source>
        <translation>计算 (F5) 后在此显示结果和曲线。</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>项目(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Recent projects</source>
        <translation>最近的项目(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>语言(&amp;A)</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>新建(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Reset &amp;zoom</source>
        <translation>重置缩放(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Export report...</source>
        <translation>导出报告(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Default values</source>
        <translation>默认值(&amp;D)</translation>
    </message>
    <message>
        <source>Ca&amp;lculate</source>
        <translation>计算(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Parameter study...</source>
        <translation>参数研究(&amp;P)...</translation>
    </message>
    <message>
        <source>The project is for the task &quot;%1&quot;, which is not on offer.</source>
        <translation>该项目所属的任务“%1”不在可选范围内。</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Projects (*.ini)</source>
        <translation>项目 (*.ini)</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>保存项目</translation>
    </message>
    <message>
        <source>Save the project in another place?</source>
        <translation>是否将项目保存到其他位置？</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>项目有未保存的更改。</translation>
    </message>
    <message>
        <source>Confirm task</source>
        <translation>确认任务</translation>
    </message>
    <message>
        <source>Several modules have this task. Which one?</source>
        <translation>有多个模块提供该任务。请选择模块：</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>导出报告</translation>
    </message>
    <message>
        <source>Documents (*.pdf)</source>
        <translation>文档 (*.pdf)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>无法写入“%1”。</translation>
    </message>
    <message>
        <source>No project</source>
        <translation>没有项目</translation>
    </message>
    <message>
        <source>Begin a new project, or open one.</source>
        <translation>请新建或打开一个项目。</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>新项目</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Calculate</source>
        <translation>计算</translation>
    </message>
    <message>
        <source>Parameter study</source>
        <translation>参数研究</translation>
    </message>
    <message>
        <source>Started, version %1</source>
        <translation>已启动，版本 %1</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>已打开 %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Task: %1</source>
        <translation>任务：%1</translation>
    </message>
    <message>
        <source>Calculated</source>
        <translation>已计算</translation>
    </message>
    <message>
        <source>Not calculated. %1</source>
        <translation>未计算。%1</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>已导出 %1</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>已结束</translation>
    </message>
</context>
<context>
    <name>ModuleTexts</name>
    <message>
        <source>calculation</source>
        <translation>计算</translation>
    </message>
    <message>
        <source>Beam</source>
        <translation>梁</translation>
    </message>
    <message>
        <source>Statics</source>
        <translation>静力学</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>几何</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Section width</source>
        <translation>截面宽度</translation>
    </message>
    <message>
        <source>Section height</source>
        <translation>截面高度</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Elastic modulus</source>
        <translation>弹性模量</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>载荷</translation>
    </message>
    <message>
        <source>Point load</source>
        <translation>集中载荷</translation>
    </message>
    <message>
        <source>Line load</source>
        <translation>均布载荷</translation>
    </message>
    <message>
        <source>Cantilever</source>
        <translation>悬臂</translation>
    </message>
    <message>
        <source>Simply supported</source>
        <translation>两端简支</translation>
    </message>
    <message>
        <source>Fixed at both ends</source>
        <translation>两端固定</translation>
    </message>
    <message>
        <source>Deformation</source>
        <translation>变形</translation>
    </message>
    <message>
        <source>Deflection</source>
        <translation>挠度</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>转角</translation>
    </message>
    <message>
        <source>Stress</source>
        <translation>应力</translation>
    </message>
    <message>
        <source>Bending moment</source>
        <translation>弯矩</translation>
    </message>
    <message>
        <source>Bending stress</source>
        <translation>弯曲应力</translation>
    </message>
    <message>
        <source>Helical spring</source>
        <translation>螺旋弹簧</translation>
    </message>
    <message>
        <source>Wire diameter</source>
        <translation>钢丝直径</translation>
    </message>
    <message>
        <source>Mean coil diameter</source>
        <translation>弹簧中径</translation>
    </message>
    <message>
        <source>Active coils</source>
        <translation>有效圈数</translation>
    </message>
    <message>
        <source>Shear modulus</source>
        <translation>切变模量</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>力</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>压缩</translation>
    </message>
    <message>
        <source>Free length</source>
        <translation>自由高度</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>拉伸</translation>
    </message>
    <message>
        <source>Initial tension</source>
        <translation>初拉力</translation>
    </message>
    <message>
        <source>Torsion</source>
        <translation>扭转</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>扭矩</translation>
    </message>
    <message>
        <source>Stiffness</source>
        <translation>刚度</translation>
    </message>
    <message>
        <source>Spring rate</source>
        <translation>弹簧刚度</translation>
    </message>
    <message>
        <source>Torsional rate</source>
        <translation>扭转刚度</translation>
    </message>
    <message>
        <source>Spring deflection</source>
        <translation>弹簧变形量</translation>
    </message>
    <message>
        <source>Angle of twist</source>
        <translation>扭转角</translation>
    </message>
    <message>
        <source>Curvature factor</source>
        <translation>曲度系数</translation>
    </message>
    <message>
        <source>Shear stress</source>
        <translation>切应力</translation>
    </message>
    <message>
        <source>Pressure vessel</source>
        <translation>压力容器</translation>
    </message>
    <message>
        <source>Vessels</source>
        <translation>容器</translation>
    </message>
    <message>
        <source>Inner diameter</source>
        <translation>内径</translation>
    </message>
    <message>
        <source>Wall thickness</source>
        <translation>壁厚</translation>
    </message>
    <message>
        <source>Internal pressure</source>
        <translation>内压</translation>
    </message>
    <message>
        <source>Thin wall</source>
        <translation>薄壁</translation>
    </message>
    <message>
        <source>Thick wall</source>
        <translation>厚壁</translation>
    </message>
    <message>
        <source>External pressure</source>
        <translation>外压</translation>
    </message>
    <message>
        <source>Hoop stress inside</source>
        <translation>内壁环向应力</translation>
    </message>
    <message>
        <source>Hoop stress mid-wall</source>
        <translation>壁中环向应力</translation>
    </message>
    <message>
        <source>Hoop stress outside</source>
        <translation>外壁环向应力</translation>
    </message>
    <message>
        <source>Radial stress inside</source>
        <translation>内壁径向应力</translation>
    </message>
    <message>
        <source>Radial stress mid-wall</source>
        <translation>壁中径向应力</translation>
    </message>
    <message>
        <source>Radial stress outside</source>
        <translation>外壁径向应力</translation>
    </message>
    <message>
        <source>Axial stress</source>
        <translation>轴向应力</translation>
    </message>
    <message>
        <source>Plane wall</source>
        <translation>平壁</translation>
    </message>
    <message>
        <source>Heat</source>
        <translation>传热</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Layer thickness</source>
        <translation>层厚度</translation>
    </message>
    <message>
        <source>Layer conductivity</source>
        <translation>层导热系数</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Convection</source>
        <translation>对流</translation>
    </message>
    <message>
        <source>Steady</source>
        <translation>稳态</translation>
    </message>
    <message>
        <source>Inner surface temperature</source>
        <translation>内表面温度</translation>
    </message>
    <message>
        <source>Outer surface temperature</source>
        <translation>外表面温度</translation>
    </message>
    <message>
        <source>With convection</source>
        <translation>带对流</translation>
    </message>
    <message>
        <source>Inner air temperature</source>
        <translation>内侧空气温度</translation>
    </message>
    <message>
        <source>Outer air temperature</source>
        <translation>外侧空气温度</translation>
    </message>
    <message>
        <source>Inner film coefficient</source>
        <translation>内侧表面传热系数</translation>
    </message>
    <message>
        <source>Outer film coefficient</source>
        <translation>外侧表面传热系数</translation>
    </message>
    <message>
        <source>Thermal resistance</source>
        <translation>热阻</translation>
    </message>
    <message>
        <source>Heat flux</source>
        <translation>热流密度</translation>
    </message>
    <message>
        <source>Boundary temperatures</source>
        <translation>各界面温度</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Records the version of the program for the updater.</source>
        <translation>为更新程序记录本程序的版本。</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Spring characteristic</source>
        <translation>弹簧特性线</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>半径</translation>
    </message>
    <message>
        <source>Hoop stress</source>
        <translation>环向应力</translation>
    </message>
    <message>
        <source>Radial stress</source>
        <translation>径向应力</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>Bending of a straight beam of constant section after Euler and Bernoulli. The beam is slender, at least ten times as long as high, elastic, and bends little; shear deformation and its own weight are left out.</source>
        <translation>按欧拉-伯努利梁理论计算等截面直梁的弯曲。梁为细长梁（长度至少为高度的十倍），材料处于弹性范围，变形微小；不计剪切变形和自重。</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>截面</translation>
    </message>
    <message>
        <source>Section diameter</source>
        <translation>截面直径</translation>
    </message>
    <message>
        <source>Tube wall thickness</source>
        <translation>管壁厚度</translation>
    </message>
    <message>
        <source>Internal forces</source>
        <translation>内力</translation>
    </message>
    <message>
        <source>Shear force</source>
        <translation>剪力</translation>
    </message>
    <message>
        <source>Spring ends</source>
        <translation>端部形式</translation>
    </message>
    <message>
        <source>Solid length</source>
        <translation>压并高度</translation>
    </message>
    <message>
        <source>Stresses in the wall of a cylindrical vessel with closed ends, away from the ends and from openings. The diameter is the inner one, and the material stays elastic.</source>
        <translation>两端封闭的圆筒形容器壁内的应力，计算位置远离封头和开孔。直径为内径，材料处于弹性范围。</translation>
    </message>
    <message>
        <source>Poisson ratio</source>
        <translation>泊松比</translation>
    </message>
    <message>
        <source>Diameter growth</source>
        <translation>内径增量</translation>
    </message>
    <message>
        <source>Steady heat conduction through a plane wall of several layers in perfect contact, straight from the inner to the outer side. The conductivity of a layer does not depend on its temperature; heat that flows outwards is positive.</source>
        <translation>多层平壁从内侧到外侧的一维稳态导热，各层接触良好，无接触热阻。各层导热系数不随温度变化；向外的热流为正。</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Round bar</source>
        <translation>圆棒</translation>
    </message>
    <message>
        <source>Round tube</source>
        <translation>圆管</translation>
    </message>
    <message>
        <source>Largest magnitude. In the plot it is positive where the side away from the loads is in tension.</source>
        <translation>最大绝对值。图中背离载荷一侧受拉时为正。</translation>
    </message>
    <message>
        <source>Largest tension and compression, in the outer fibres of the section.</source>
        <translation>截面最外层纤维处的最大拉应力和压应力。</translation>
    </message>
    <message>
        <source>Largest displacement in the direction of the loads: at midspan.</source>
        <translation>沿载荷方向的最大位移，位于跨中。</translation>
    </message>
    <message>
        <source>Largest displacement in the direction of the loads: at the free end.</source>
        <translation>沿载荷方向的最大位移，位于自由端。</translation>
    </message>
    <message>
        <source>Of the material: about 210000 MPa for steel, 70000 MPa for aluminium, 11000 MPa for softwood along the grain.</source>
        <translation>材料的弹性模量：钢约 210000 MPa，铝约 70000 MPa，针叶木顺纹约 11000 MPa。</translation>
    </message>
    <message>
        <source>Distance between the supports, or from the clamped to the free end. It should be at least ten times the height of the section.</source>
        <translation>两支座间的距离，或固定端到自由端的距离。至少应为截面高度的十倍。</translation>
    </message>
    <message>
        <source>Force per length, the same over the whole beam and in the direction of the point load. Leave it empty when there is none.</source>
        <translation>单位长度上的力，沿全梁均匀分布，方向与集中载荷相同。没有时请留空。</translation>
    </message>
    <message>
        <source>Acts at midspan, across the beam. Leave it empty when there is none.</source>
        <translation>垂直于梁轴，作用于跨中。没有时请留空。</translation>
    </message>
    <message>
        <source>Acts at the free end, across the beam. Leave it empty when there is none.</source>
        <translation>垂直于梁轴，作用于自由端。没有时请留空。</translation>
    </message>
    <message>
        <source>Shape of the section, which is the same over the whole length.</source>
        <translation>截面形状，沿全长不变。</translation>
    </message>
    <message>
        <source>Outer diameter of the bar or the tube.</source>
        <translation>圆棒或圆管的外径。</translation>
    </message>
    <message>
        <source>In the direction of the loads.</source>
        <translation>沿载荷方向的尺寸。</translation>
    </message>
    <message>
        <source>Across the direction of the loads.</source>
        <translation>垂直于载荷方向的尺寸。</translation>
    </message>
    <message>
        <source>Largest magnitude: at the supports. In the plot it is the rise of the bending moment.</source>
        <translation>最大绝对值，位于支座处。图中剪力为弯矩的变化率。</translation>
    </message>
    <message>
        <source>Largest angle between the bent and the straight beam.</source>
        <translation>梁弯曲后与原轴线之间的最大夹角。</translation>
    </message>
    <message>
        <source>At most half of the diameter, which gives a solid bar.</source>
        <translation>不大于直径的一半，等于一半时为实心圆棒。</translation>
    </message>
    <message>
        <source>Closed and ground</source>
        <translation>并紧磨平</translation>
    </message>
    <message>
        <source>Closed, not ground</source>
        <translation>并紧不磨平</translation>
    </message>
    <message>
        <source>Plain and ground</source>
        <translation>不并紧磨平</translation>
    </message>
    <message>
        <source>Plain, not ground</source>
        <translation>不并紧不磨平</translation>
    </message>
    <message>
        <source>Coils that deform, without those that lie on each other or on the support. It need not be a whole number.</source>
        <translation>参与变形的圈数，不含并紧圈和支承圈。可以不是整数。</translation>
    </message>
    <message>
        <source>Under the torque, of one end against the other; more than 360° is more than a turn.</source>
        <translation>扭矩作用下一端相对另一端的转角；超过 360° 即超过一圈。</translation>
    </message>
    <message>
        <source>At the inner side of the coil, where it is largest.</source>
        <translation>簧圈内侧的应力，该处应力最大。</translation>
    </message>
    <message>
        <source>Wahl&apos;s factor: how far the stress at the inner side of the coil exceeds that of a straight wire.</source>
        <translation>Wahl 曲度系数：簧圈内侧应力与直杆应力之比。</translation>
    </message>
    <message>
        <source>Of the wire: about 206000 MPa for spring steel, 190000 MPa for stainless steel. The wire of a torsion spring is bent, so this modulus counts and not the shear modulus.</source>
        <translation>钢丝的弹性模量：弹簧钢约 206000 MPa，不锈钢约 190000 MPa。扭转弹簧的钢丝承受弯曲，故采用弹性模量而非切变模量。</translation>
    </message>
    <message>
        <source>Along the axis of the spring. Beyond the force at which the coils touch there is no result.</source>
        <translation>沿弹簧轴线。超过簧圈压并时的力则没有结果。</translation>
    </message>
    <message>
        <source>Along the axis of the spring. It is at least the initial tension.</source>
        <translation>沿弹簧轴线，不小于初拉力。</translation>
    </message>
    <message>
        <source>Length without load. It is at least the solid length.</source>
        <translation>无载荷时的高度，不小于压并高度。</translation>
    </message>
    <message>
        <source>Force with which the coils lie on each other without load. Leave it empty when there is none.</source>
        <translation>无载荷时簧圈之间的压紧力。没有时请留空。</translation>
    </message>
    <message>
        <source>From wire centre to wire centre: the outer diameter less one wire diameter. Four to twelve times the wire diameter is usual.</source>
        <translation>按钢丝中心线计量，即外径减去一个钢丝直径。通常为钢丝直径的 4 至 12 倍。</translation>
    </message>
    <message>
        <source>Of the wire: about 81500 MPa for spring steel, 73000 MPa for stainless steel.</source>
        <translation>钢丝的切变模量：弹簧钢约 81500 MPa，不锈钢约 73000 MPa。</translation>
    </message>
    <message>
        <source>Length when all coils touch.</source>
        <translation>全部簧圈接触时的高度。</translation>
    </message>
    <message>
        <source>Travel under the force.</source>
        <translation>力作用下的变形量。</translation>
    </message>
    <message>
        <source>How the wire ends at both sides. It decides how long the spring is when its coils touch.</source>
        <translation>弹簧两端钢丝的结构形式，决定簧圈压并时的高度。</translation>
    </message>
    <message>
        <source>Force per travel.</source>
        <translation>单位变形量所需的力。</translation>
    </message>
    <message>
        <source>About the axis of the spring.</source>
        <translation>绕弹簧轴线。</translation>
    </message>
    <message>
        <source>Torque per angle.</source>
        <translation>单位转角所需的扭矩。</translation>
    </message>
    <message>
        <source>Along the vessel, from the pressure on its closed ends; the same everywhere in the wall. Tension is positive.</source>
        <translation>沿容器轴向，由作用于封闭端的压力引起；在壁内处处相同。受拉为正。</translation>
    </message>
    <message>
        <source>How far the inner diameter grows under the pressure.</source>
        <translation>压力作用下内径的增大量。</translation>
    </message>
    <message>
        <source>Counts for the growth of the diameter only, not for the stresses.</source>
        <translation>仅用于计算内径增量，与应力无关。</translation>
    </message>
    <message>
        <source>Leave it empty when the internal pressure is that above the surroundings.</source>
        <translation>内压为高于外界的表压时请留空。</translation>
    </message>
    <message>
        <source>Around the vessel, at the inner surface. Tension is positive.</source>
        <translation>内壁处沿圆周方向的应力。受拉为正。</translation>
    </message>
    <message>
        <source>Around the vessel, in the middle of the wall. Tension is positive.</source>
        <translation>壁厚中间处沿圆周方向的应力。受拉为正。</translation>
    </message>
    <message>
        <source>Around the vessel, at the outer surface. Tension is positive.</source>
        <translation>外壁处沿圆周方向的应力。受拉为正。</translation>
    </message>
    <message>
        <source>Measured inside, without a lining.</source>
        <translation>筒体内侧的直径，不含衬里。</translation>
    </message>
    <message>
        <source>Counted from the same zero as the external pressure.</source>
        <translation>与外压从同一零点算起。</translation>
    </message>
    <message>
        <source>Above the pressure outside.</source>
        <translation>高于外界的压力。</translation>
    </message>
    <message>
        <source>Counts for the growth of the diameter only: about 0.3 for steel. No isotropic material exceeds 0.5, at which the volume stays the same.</source>
        <translation>仅用于计算内径增量：钢约为 0.3。各向同性材料不超过 0.5，等于 0.5 时体积不变。</translation>
    </message>
    <message>
        <source>Through the wall: minus the internal pressure.</source>
        <translation>沿壁厚方向，等于负的内压。</translation>
    </message>
    <message>
        <source>Through the wall, in its middle. Compression is negative.</source>
        <translation>壁厚中间处沿壁厚方向的应力。受压为负。</translation>
    </message>
    <message>
        <source>Through the wall: minus the external pressure.</source>
        <translation>沿壁厚方向，等于负的外压。</translation>
    </message>
    <message>
        <source>Through the wall: zero at its free surface.</source>
        <translation>沿壁厚方向，在自由表面处为零。</translation>
    </message>
    <message>
        <source>Of the bearing wall, without an allowance for corrosion.</source>
        <translation>承载壁的厚度，不含腐蚀裕量。</translation>
    </message>
    <message>
        <source>Of the bearing wall, without an allowance for corrosion. At most a tenth of the inner radius.</source>
        <translation>承载壁的厚度，不含腐蚀裕量。不超过内半径的十分之一。</translation>
    </message>
    <message>
        <source>From the inner surface through every boundary between layers to the outer surface.</source>
        <translation>从内表面经各层界面到外表面的温度。</translation>
    </message>
    <message>
        <source>Through each square metre, the same in all layers. It is positive from the inner to the outer side.</source>
        <translation>单位面积上的热流，各层相同。由内向外为正。</translation>
    </message>
    <message>
        <source>Far from the wall.</source>
        <translation>远离壁面处的温度。</translation>
    </message>
    <message>
        <source>Of convection and radiation together: about 7.7 indoors.</source>
        <translation>对流与辐射的总表面传热系数：室内约为 7.7。</translation>
    </message>
    <message>
        <source>One number per layer, in the order of the thicknesses: about 0.035 for mineral wool, 0.5 for brick, 2 for concrete.</source>
        <translation>每层一个数，顺序与厚度相同：矿棉约 0.035，砖约 0.5，混凝土约 2。</translation>
    </message>
    <message>
        <source>One number per layer, from the inner to the outer side.</source>
        <translation>每层一个数，从内到外。</translation>
    </message>
    <message>
        <source>Of convection and radiation together: about 25 outdoors, with wind.</source>
        <translation>对流与辐射的总表面传热系数：室外有风时约为 25。</translation>
    </message>
    <message>
        <source>Of all layers together, from surface to surface.</source>
        <translation>各层热阻之和，从内表面到外表面。</translation>
    </message>
    <message>
        <source>Of all layers and both air films together.</source>
        <translation>各层与两侧表面热阻之和。</translation>
    </message>
    <message>
        <source>A beam clamped rigidly at its left end and free at the other. The point load acts at the free end, the line load over the whole length. The results are the largest values along the beam.</source>
        <translation>左端刚性固定、另一端自由的梁。集中载荷作用于自由端，均布载荷作用于全长。结果为沿梁的最大值。</translation>
    </message>
    <message>
        <source>A beam on a support at each end, which lets it turn. The point load acts at midspan, the line load over the whole length. The results are the largest values along the beam.</source>
        <translation>两端铰支、端部可自由转动的梁。集中载荷作用于跨中，均布载荷作用于全长。结果为沿梁的最大值。</translation>
    </message>
    <message>
        <source>A beam clamped rigidly at both ends, one of which can move lengthwise. The point load acts at midspan, the line load over the whole length. The results are the largest values along the beam.</source>
        <translation>两端刚性固定、其中一端可沿轴向移动的梁。集中载荷作用于跨中，均布载荷作用于全长。结果为沿梁的最大值。</translation>
    </message>
    <message>
        <source>Cylindrical helical spring of round wire, with the stress at the inner side of the coil after Wahl. Diameters of coils are measured from wire centre to wire centre, and only active coils deform.</source>
        <translation>圆截面钢丝圆柱螺旋弹簧，簧圈内侧应力按 Wahl 公式计算。簧圈直径按钢丝中心线计量，仅有效圈参与变形。</translation>
    </message>
    <message>
        <source>A spring pressed along its axis. Buckling is not checked.</source>
        <translation>沿轴线受压的弹簧。不校核失稳。</translation>
    </message>
    <message>
        <source>A spring pulled along its axis, which opens when the force exceeds the initial tension. The hooks are left out, in travel as in stress.</source>
        <translation>沿轴线受拉的弹簧，力超过初拉力时开始伸长。变形和应力均不计钩环。</translation>
    </message>
    <message>
        <source>A spring twisted about its axis, in the direction that closes the coils. The legs and friction on a mandrel are left out.</source>
        <translation>绕轴线沿簧圈收紧方向受扭的弹簧。不计扭臂变形和芯轴摩擦。</translation>
    </message>
    <message>
        <source>Membrane stresses after Barlow on the inner diameter, for a wall of at most a tenth of the inner radius. The pressure is that above the surroundings.</source>
        <translation>按 Barlow 公式以内径计算的薄膜应力，适用于壁厚不超过内半径十分之一的容器。压力为高于外界的表压。</translation>
    </message>
    <message>
        <source>Stresses after Lamé at the inner surface, in the middle and at the outer surface of a wall of any thickness. Both pressures are counted from the same zero.</source>
        <translation>按拉梅公式计算任意壁厚容器内壁、壁中和外壁处的应力。内压与外压从同一零点算起。</translation>
    </message>
    <message>
        <source>Steady heat flow between two known surface temperatures. The layers are entered from the inner to the outer side.</source>
        <translation>已知两侧表面温度时的稳态导热。各层从内到外输入。</translation>
    </message>
    <message>
        <source>Steady heat flow between the air on both sides. The layers are entered from the inner to the outer side; radiation is part of the film coefficients.</source>
        <translation>两侧空气之间的稳态传热。各层从内到外输入；辐射已计入表面传热系数。</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>无法读取“%1”：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project of this program: it names no task.</source>
        <translation>“%1”不是本程序的项目：其中没有任务。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>无法写入“%1”。</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; = %2 is not used by any task. It is kept in the project.</source>
        <translation>没有任务使用值“%1”= %2。该值保留在项目中。</translation>
    </message>
    <message>
        <source>The project was saved by version %1. This is version %2.</source>
        <translation>该项目由版本 %1 保存，当前版本为 %2。</translation>
    </message>
    <message>
        <source>%1 was saved in %2. It is now given in %3.</source>
        <translation>%1 保存时的单位为 %2，现已换算为 %3。</translation>
    </message>
    <message>
        <source>%1 was saved in %2. Enter it in %3.</source>
        <translation>%1 保存时的单位为 %2。请以 %3 为单位重新输入。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another window.</source>
        <translation>“%1”已在另一个窗口中打开。</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
</context>
<context>
    <name>Spring</name>
    <message>
        <source>%1: enter more than the wire diameter, or the coil has no inside.</source>
        <translation>%1：必须大于钢丝直径，否则簧圈没有内孔。</translation>
    </message>
    <message>
        <source>%1: enter at least the solid length of %2 mm.</source>
        <translation>%1：不得小于压并高度 %2 mm。</translation>
    </message>
    <message>
        <source>%1: the coils touch at %2 N. Enter less, or make the spring longer or stiffer.</source>
        <translation>%1：达到 %2 N 时簧圈已压并。请减小力，或加长、加硬弹簧。</translation>
    </message>
    <message>
        <source>%1: enter at least the initial tension; below it the coils stay closed.</source>
        <translation>%1：不得小于初拉力，否则簧圈保持并紧。</translation>
    </message>
</context>
<context>
    <name>StudyDialog</name>
    <message>
        <source>Parameter study</source>
        <translation>参数研究</translation>
    </message>
    <message>
        <source>&amp;Parameter</source>
        <translation>参数(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>从(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;to</source>
        <translation>至(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Steps</source>
        <translation>步数(&amp;S)</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>显示(&amp;W)</translation>
    </message>
    <message>
        <source>Results over the parameter</source>
        <translation>结果随参数的变化</translation>
    </message>
    <message>
        <source>Family of curves</source>
        <translation>曲线族</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>Save as &amp;CSV...</source>
        <translation>保存为 CSV(&amp;C)...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Enter two different numbers between which the parameter is to go.</source>
        <translation>请输入两个不同的数，作为参数的起止值。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Canceled after %1 of %2 points.</source>
        <translation>已取消，共 %2 个点，完成 %1 个。</translation>
    </message>
    <message>
        <source>Not computed at %L1: %2</source>
        <translation>在 %L1 处未计算：%2</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>保存为 CSV</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>表格 (*.csv)</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>已保存为“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>Study of %1: %2 of %3 points</source>
        <translation>参数研究 %1：%2/%3 个点</translation>
    </message>
    <message>
        <source>Computing...</source>
        <translation>正在计算…</translation>
    </message>
</context>
<context>
    <name>Vessel</name>
    <message>
        <source>%1: enter at most %2 mm, a tenth of the inner radius, or choose the task for thick walls.</source>
        <translation>%1：不得大于 %2 mm（内半径的十分之一），否则请选择厚壁任务。</translation>
    </message>
</context>
<context>
    <name>Wall</name>
    <message>
        <source>%1: enter at least one layer.</source>
        <translation>%1：请至少输入一层。</translation>
    </message>
    <message>
        <source>%1: enter one number per layer. There are %2 layers and %3 numbers.</source>
        <translation>%1：每层输入一个数。现有 %2 层、%3 个数。</translation>
    </message>
</context>
</TS>
